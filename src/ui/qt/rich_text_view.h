// Shows a rich text in a text document of the toolkit.
#pragma once

#include "ui/rich_text/rich_text.h"

class QTextDocument;

// Replaces the content of `document`. Text without a colour keeps that of the widget's palette. The
// cursor of a widget that shows the document ends up behind the text.
void ShowRichText(const RichText& text, QTextDocument& document);

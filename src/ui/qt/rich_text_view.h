// Shows a rich text in a text document of the toolkit.
#pragma once

#include "ui/rich_text/rich_text.h"

class QTextDocument;

// How much larger than told a document is shown: at least 1, more where the desktop's letters are
// larger than a document's usual ones.
double Enlargement();

// Replaces the content of `document`. Text without a colour keeps that of the widget's palette. The
// cursor of a widget that shows the document ends up behind the text.
void ShowRichText(const RichText& text, QTextDocument& document);

// A message box whose text keeps its lines whatever the desktop's font. The toolkit's own wraps
// them, and cuts them off in a large font.
#pragma once

#include <QDialog>

#include "platform/desktop.h"

class MessageDialog : public QDialog {
public:
    // `text` is plain text. Accepted by Yes and Ok, rejected by No and by closing the box.
    MessageDialog(QWidget* parent, const QString& text, const QString& title, MessageIcon icon,
                  MessageButtons buttons);
};

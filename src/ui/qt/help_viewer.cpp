#include "ui/qt/help_viewer.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QScreen>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "base/files.h"
#include "core/state/game_state.h"
#include "platform/desktop.h"
#include "ui/qt/form_dialog.h"
#include "ui/qt/rich_text_view.h"

namespace {

constexpr QSize InitialSize(620, 460); // pixels, of a document that is not enlarged
constexpr int Narrowest = 320;
constexpr QSize RoomForFrame(40, 60);

RichText ReadDocument(const char* name) {
    return ReadRichText(ReadRegularFile(name, LargestRichText + 1).value_or(""));
}

} // namespace

HelpViewer::HelpViewer(QWidget* parent) : PlacedDialog(parent), rtfHelp(new QTextBrowser(this)) {
    setObjectName("frmHelp");
    setWindowTitle("Quiblink Help");
    rtfHelp->setObjectName("rtfHelp");
    rtfHelp->setAccessibleName("Document");
    auto* buttons = new QDialogButtonBox(this);
    connect(AddOk(*buttons), &QPushButton::clicked, this, &HelpViewer::cmdOk_Click);
    auto* all = new QVBoxLayout(this);
    all->addWidget(rtfHelp);
    all->addWidget(buttons);
    resize((InitialSize * Enlargement()).boundedTo(screen()->availableSize() - RoomForFrame));
}

void HelpViewer::OpenOrRaise() {
    if (!isVisible() && !HasPlace())
        PlaceBeside(*this, *parentWidget(), static_cast<int>(Narrowest * Enlargement()));
    ShowAndRaise(); // first: else the text is laid out for hardly any width before it is for this
    Form_Load();
}

void HelpViewer::Form_Load() {
    setWindowTitle(Game.ShowHistory ? "Quiblink History" : "Quiblink Help");
    ShowRichText(ReadDocument(Game.ShowHistory ? "qblnkhst.rtf" : "quiblnk.rtf"),
                 *rtfHelp->document());
    // Who listens reads with a text cursor; who looks turns the page.
    rtfHelp->setTextInteractionFlags(IsListenedTo()
                                         ? Qt::TextBrowserInteraction | Qt::TextSelectableByKeyboard
                                         : Qt::TextBrowserInteraction);
    rtfHelp->moveCursor(QTextCursor::Start);
    rtfHelp->setFocus();
}

// Any bytes as a help document: laid out and painted.
#include <QAbstractTextDocumentLayout>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTextDocument>

#include "fuzz/target.h"
#include "ui/qt/rich_text_view.h"

namespace {

void StartToolkit() {
    static int count = 1;
    static char name[] = "rich_text_view";
    static char* arguments[] = {name};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, arguments);
}

} // namespace

void TryInput(const std::string& input) {
    constexpr QRect shown(0, 0, 600, 400);
    constexpr double tallest = 1 << 23; // pixels; beyond them the toolkit never comes to an end
    StartToolkit();
    QTextDocument document;
    ShowRichText(ReadRichText(input), document);
    document.setTextWidth(shown.width());
    Require(document.documentLayout()->documentSize().height() < tallest / 2, "a text has an end");
    QImage image(shown.size(), QImage::Format_RGB32);
    QPainter painter(&image);
    document.drawContents(&painter, shown);
}

#include "ui/qt/spoken_widgets.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <array>

#include "core/play/review.h"
#include "core/state/game_state.h"
#include "display/news.h"
#include "ui/qt/playing_field.h"

namespace {

// A text that is said by giving it the focus; its widget keeps the keyboard.
class Saying : public QAccessibleInterface {
public:
    explicit Saying(QAccessibleInterface* speaker) : Speaker(speaker) {}

    QString Text;
    bool IsLast = false;

    bool isValid() const override { return Speaker->isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return Speaker->window(); }
    QAccessibleInterface* parent() const override { return Speaker; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QRect rect() const override { return Speaker->rect(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; } // adds no word
    QAccessible::State state() const override {
        QAccessible::State state = Speaker->state();
        state.focused = state.focused && IsLast;
        state.invisible = state.invisible || !IsLast;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? Text : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

private:
    QAccessibleInterface* Speaker;
};

// A widget with two sayings, which take turns, for the focus must move to be noticed. Each text is
// a new object, since some readers ask an object but once for its name.
class SpeakingWidget : public QAccessibleWidget {
public:
    SpeakingWidget(QWidget* widget, QAccessible::Role role) : QAccessibleWidget(widget, role) {
        for (std::size_t i = 0; i < Sayings.size(); ++i)
            Renew(i);
    }
    ~SpeakingWidget() override {
        for (const QAccessible::Id saying : Ids)
            QAccessible::deleteAccessibleInterface(saying);
    }

    int PutIntoWords(const QString& text) {
        const int next = Sayings.at(0)->IsLast ? 1 : 0;
        QAccessible::deleteAccessibleInterface(Ids.at(next));
        Renew(next);
        Sayings.at(next)->Text = text;
        Sayings.at(next)->IsLast = true;
        Sayings.at(1 - next)->IsLast = false;
        return next;
    }

    int childCount() const override { return static_cast<int>(Sayings.size()); }
    QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount() ? Sayings.at(index) : nullptr;
    }
    // What is said lies nowhere on the widget: a press there is one on the widget.
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child == Sayings.at(0) ? 0 : child == Sayings.at(1) ? 1 : -1;
    }

private:
    void Renew(std::size_t index) {
        Sayings.at(index) = new Saying(this);
        Ids.at(index) = QAccessible::registerAccessibleInterface(Sayings.at(index)); // it owns them
    }

    std::array<Saying*, 2> Sayings{};
    std::array<QAccessible::Id, 2> Ids{};
};

// How to hear more, where there is a field.
QString Keys() {
    return Game.BoxCount == 0 ? "" : " Home, End and Shift with an arrow tell more.";
}

class SpeakingField : public SpeakingWidget {
public:
    explicit SpeakingField(QWidget* field) : SpeakingWidget(field, QAccessible::Canvas) {}

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return QString::fromStdString(GhostLineInWords());
        if (kind == QAccessible::Description)
            return QString::fromStdString(StandingInWords()) + Keys();
        return SpeakingWidget::text(kind);
    }
};

class SpeakingList : public SpeakingWidget {
public:
    explicit SpeakingList(QComboBox* list)
        : SpeakingWidget(list, QAccessible::ComboBox), List(list) {
        QObject::connect(list, &QComboBox::currentTextChanged, list, [list](const QString& entry) {
            QAccessibleEvent renamed(list, QAccessible::NameChanged);
            QAccessible::updateAccessibility(&renamed);
            if (list->hasFocus())
                SayAt(list, entry);
        });
    }

    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value)
            return List->currentText();
        const QString text = SpeakingWidget::text(kind);
        return kind == QAccessible::Name ? text + ", " + List->currentText() : text;
    }
    // Its label's text would be heard instead of the name.
    QList<std::pair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation /*match*/) const override {
        return {};
    }
    QStringList actionNames() const override {
        return SpeakingWidget::actionNames() << showMenuAction();
    }
    void doAction(const QString& action) override {
        if (action == showMenuAction())
            List->showPopup();
        else
            SpeakingWidget::doAction(action);
    }

private:
    QComboBox* List;
};

QAccessibleInterface* InterfaceOf(const QString& /*className*/, QObject* object) {
    if (auto* field = qobject_cast<PlayingField*>(object))
        return new SpeakingField(field);
    if (auto* list = qobject_cast<QComboBox*>(object))
        return new SpeakingList(list);
    return nullptr;
}

} // namespace

void MakeWidgetsSpeak() {
    QAccessible::installFactory(InterfaceOf);
}

void SayAt(QWidget* widget, const QString& text) {
    auto* speaker = dynamic_cast<SpeakingWidget*>(QAccessible::queryAccessibleInterface(widget));
    if (speaker == nullptr)
        return;
    QAccessibleEvent event(widget, QAccessible::Focus);
    event.setChild(speaker->PutIntoWords(text));
    QAccessible::updateAccessibility(&event);
}

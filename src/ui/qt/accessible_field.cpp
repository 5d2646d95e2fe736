#include "ui/qt/accessible_field.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <array>

#include "display/words.h"
#include "ui/qt/playing_field.h"

namespace {

// A text that is said by giving it the focus; the field keeps the keyboard.
class Saying : public QAccessibleInterface {
public:
    explicit Saying(QAccessibleInterface* field) : Field(field) {}

    QString Text;
    bool IsLast = false;

    bool isValid() const override { return Field->isValid(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return Field->window(); }
    QAccessibleInterface* parent() const override { return Field; }
    QAccessibleInterface* child(int /*index*/) const override { return nullptr; }
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface* /*child*/) const override { return -1; }
    QRect rect() const override { return Field->rect(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; } // adds no word
    QAccessible::State state() const override {
        QAccessible::State state = Field->state();
        state.focused = state.focused && IsLast;
        state.invisible = state.invisible || !IsLast;
        return state;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? Text : QString();
    }
    void setText(QAccessible::Text /*kind*/, const QString& /*text*/) override {}

private:
    QAccessibleInterface* Field;
};

// Two sayings take turns, for the focus must move to be noticed.
class AccessibleField : public QAccessibleWidget {
public:
    explicit AccessibleField(QWidget* field) : QAccessibleWidget(field, QAccessible::Canvas) {
        for (std::size_t i = 0; i < Sayings.size(); ++i) {
            Sayings.at(i) = new Saying(this);
            Ids.at(i) = QAccessible::registerAccessibleInterface(Sayings.at(i)); // it owns them
        }
    }
    ~AccessibleField() override {
        for (const QAccessible::Id saying : Ids)
            QAccessible::deleteAccessibleInterface(saying);
    }

    int PutIntoWords(const QString& text) {
        const int next = Sayings.at(0)->IsLast ? 1 : 0;
        Sayings.at(next)->Text = text;
        Sayings.at(next)->IsLast = true;
        Sayings.at(1 - next)->IsLast = false;
        return next;
    }

    int childCount() const override { return static_cast<int>(Sayings.size()); }
    QAccessibleInterface* child(int index) const override {
        return index >= 0 && index < childCount() ? Sayings.at(index) : nullptr;
    }
    // What is said lies nowhere on the field: a press there is one on the field.
    QAccessibleInterface* childAt(int /*x*/, int /*y*/) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child == Sayings.at(0) ? 0 : child == Sayings.at(1) ? 1 : -1;
    }
    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? QString::fromStdString(GhostLineInWords())
                                          : QAccessibleWidget::text(kind);
    }

private:
    std::array<Saying*, 2> Sayings{};
    std::array<QAccessible::Id, 2> Ids{};
};

QAccessibleInterface* AccessibleFieldOf(const QString& /*className*/, QObject* object) {
    auto* field = qobject_cast<PlayingField*>(object);
    return field == nullptr ? nullptr : new AccessibleField(field);
}

} // namespace

void MakeFieldAccessible() {
    QAccessible::installFactory(AccessibleFieldOf);
}

void SayAtField(PlayingField* field, const QString& text) {
    auto* accessible = dynamic_cast<AccessibleField*>(QAccessible::queryAccessibleInterface(field));
    if (accessible == nullptr)
        return;
    QAccessibleEvent event(field, QAccessible::Focus);
    event.setChild(accessible->PutIntoWords(text));
    QAccessible::updateAccessibility(&event);
}

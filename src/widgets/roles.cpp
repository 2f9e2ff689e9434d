#include "widgets/roles.h"

#include <QAbstractButton>
#include <QAccessibleWidget>
#include <QGroupBox>

namespace torvane {

namespace {

constexpr const char* roleProperty = "role";

class Told : public QAccessibleWidget {
public:
    explicit Told(QWidget& widget) : QAccessibleWidget(&widget) {}

    QAccessible::Role role() const override {
        if (const QVariant given = widget()->property(roleProperty); given.isValid())
            return static_cast<QAccessible::Role>(given.toInt());
        if (!widget()->isWindow()) return QAccessible::Grouping;
        return widget()->windowType() == Qt::Dialog ? QAccessible::Dialog : QAccessible::Window;
    }

    QString text(QAccessible::Text kind) const override {
        const auto* group = qobject_cast<const QGroupBox*>(widget());
        if (kind != QAccessible::Name || !group || !group->accessibleName().isEmpty())
            return QAccessibleWidget::text(kind);
        return group->title().remove('&').trimmed();
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        if (button() && button()->isCheckable()) {
            state.selectable = true;
            state.selected = button()->isChecked();
        }
        return state;
    }

    QStringList actionNames() const override {
        return button() ? QStringList(pressAction()) + QAccessibleWidget::actionNames()
                        : QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (button() && name == pressAction()) return button()->click();
        QAccessibleWidget::doAction(name);
    }

private:
    QAbstractButton* button() const { return qobject_cast<QAbstractButton*>(widget()); }
};

// Asked with the name of the object's class, then with those above it.
QAccessibleInterface* told(const QString& className, QObject* object) {
    auto* widget = qobject_cast<QWidget*>(object);
    if (!widget) return nullptr;
    const auto kind = widget->windowType();
    const bool screen =
        className == QLatin1String("QWidget") && widget->isWindow() && (kind == Qt::Window || kind == Qt::Dialog);
    const bool group = className == QLatin1String("QGroupBox") && !static_cast<QGroupBox*>(widget)->isCheckable();
    return screen || group || widget->property(roleProperty).isValid() ? new Told(*widget) : nullptr;
}

}  // namespace

void installRoles() {
    QAccessible::installFactory(told);
}

void setRole(QWidget& control, QAccessible::Role role) {
    control.setProperty(roleProperty, static_cast<int>(role));
}

}  // namespace torvane

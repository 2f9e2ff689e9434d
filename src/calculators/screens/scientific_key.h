#pragma once

#include <QPushButton>

namespace torvane {

// One of the scientific calculator's keys. All are as large as the widest caption asks, and each press shows for a
// moment, also one that comes from the keyboard.
class ScientificKey : public QPushButton {
public:
    ScientificKey(const QString& caption, QWidget* parent);
    // Shows it pressed for a moment.
    void light();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void initStyleOption(QStyleOptionButton* option) const override;

private:
    bool lit_ = false;
};

}  // namespace torvane

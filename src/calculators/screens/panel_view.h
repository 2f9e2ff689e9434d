#pragma once

#include <QGroupBox>
#include <map>
#include <memory>

#include "calculators/panel.h"
#include "screens/form.h"

class QGridLayout;
class QLabel;

namespace torvane {

// A panel on the screen: a frame with the panel's controls, under the caption of the tab where the frame has none. It
// presses no key of its own but Enter: in a box it presses the button that follows.
class PanelView : public QGroupBox, private PanelDesk {
    Q_OBJECT
public:
    PanelView(Form& form, std::unique_ptr<Panel> panel, QWidget* parent);

    int helpContext() const { return panel_->helpContext; }
    // Shows it, with the keys in its first control and the lists on their first entry that are to stand there. `tab` is
    // the caption of its tab, for the run-time error box.
    void open(std::string_view tab);

private:
    std::string text(const Box& box) const override;
    void setText(const Box& box, std::string_view text) override;
    int selected(const List& list) const override;
    bool isSet(const Option& option) const override;

    QGridLayout& gridOf(const Control* frame) const;
    QWidget* make(const Control& control, QWidget* parent);
    QWidget* makeBox(const Control& box, QWidget* parent) const;
    QWidget* makeList(const Control& list, QWidget* parent) const;
    QWidget* makeButton(const Control& button, QWidget* parent);
    QWidget* makeHelp(const Control& control, QWidget* parent);
    int digitsIn(const Control& box) const;
    QString spokenName(const Control& control) const;
    std::string_view headingOver(const Control& control) const;
    void place(const Control& control);
    bool sharesItsCell(const Control& control) const;
    void keyPressEvent(QKeyEvent* event) override;

    Form& form_;
    const std::unique_ptr<Panel> panel_;
    std::string_view tab_;
    QLabel* caption_ = nullptr;  // the tab's, over a panel that has none of its own
    std::map<const Control*, QWidget*> widgets_;
};

}  // namespace torvane

#pragma once

#include <QGroupBox>
#include <vector>

#include "calculators/panel.h"
#include "platform/form.h"

class QGridLayout;

namespace torvane {

class TextBox;

// A panel on the screen: a frame with the controls of its table, which presses no key of its own but Enter: in a box it
// presses the button that follows.
class PanelView : public QGroupBox, public PanelTexts {
    Q_OBJECT
public:
    PanelView(Form& form, const Panel& panel, QWidget* parent);

    // The caption of the tab that shows it, for the run-time error box.
    void setShownAs(std::string_view caption) { shownAs_ = caption; }
    // Sets the lists that are to stand on their first entry when the panel is shown.
    void selectFirstEntries();

    std::string text(std::string_view box) const override;
    void setText(std::string_view box, std::string_view text) override;
    int listIndex(std::string_view list) const override;
    int itemData(std::string_view list) const override;
    bool isSet(std::string_view option) const override;

private:
    // The control of this name. Failure::ObjectNotSet when the panel has none of this kind.
    template <class Control>
    Control& control(std::string_view name) const;
    QGridLayout& gridOf(std::string_view frame);
    QWidget* add(const PanelControl& control);
    TextBox* addBox(const PanelControl& control, QWidget* parent);
    int digitsIn(const PanelControl& control) const;
    QWidget* addList(const PanelControl& control, QWidget* parent);
    QWidget* addButton(const PanelControl& control, QWidget* parent);
    QWidget* addHelp(const PanelControl& control, QWidget* parent);
    void place(const PanelControl& control, QWidget& made);
    QString spokenName(const PanelControl& control) const;
    void pressOnEnter();

    Form& form_;
    const Panel& panel_;
    std::string_view shownAs_;
    std::vector<QWidget*> made_;  // one for each row of the table
};

}  // namespace torvane

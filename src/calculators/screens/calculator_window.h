#pragma once

#include <cstdint>
#include <map>

#include "calculators/calculator_groups.h"
#include "screens/form.h"

namespace torvane {

class PanelView;
class TabStrip;

// One of the four tabbed calculator windows, drawn from its table. What was typed goes with the window.
class CalculatorWindow : public Form {
public:
    CalculatorWindow(Program& program, const CalculatorGroup& group);

    // The tab to show next, from 1 in the order of the strip. One that is not there shows nothing.
    std::int16_t Which = 0;
    // Shows the panel of `Which`; loads the window. The mark of the strip stays where it is. Lists that open on an
    // entry are set to it; what was typed and computed stays.
    void Showframe();
    // Hides every panel.
    virtual void Unloadall();

protected:
    void build(QWidget& window) override;
    void dropControls() override;
    void Form_Load() override;
    // What a tab does when it is chosen, everything hidden before.
    virtual void openTab(const CalculatorTab& tab);

private:
    QWidget* makePanels();
    QSize largestPanel() const;
    QWidget* foot(QWidget* parent);

    const CalculatorGroup& group_;
    TabStrip* TabStrip1_ = nullptr;
    std::map<MakePanel, PanelView*> panels_;
};

// Group 1: its tabs also open the scientific calculator and the conversions program, and each change of its panel, as
// well as its end, closes the scientific calculator and groups 2 and 3.
class frmCalculators : public CalculatorWindow {
public:
    frmCalculators(Program& program, Form& scientific, CalculatorWindow& group2, CalculatorWindow& group3);
    void Unloadall() override;

protected:
    void Form_Load() override;
    void Form_Unload() override { Unloadall(); }
    void openTab(const CalculatorTab& tab) override;

private:
    void openScientific();
    Form& scientific_;
    CalculatorWindow& group2_;
    CalculatorWindow& group3_;
};

}  // namespace torvane

#pragma once

#include <string>

#include "calculators/panel.h"

namespace torvane {

// The text boxes of one panel by their numbers: box 3 of panel 28 is txtTab28_3. Reading and writing are those of
// PanelTexts, with its failures.
class NumberedBoxes {
public:
    NumberedBoxes(PanelTexts& texts, int panel) : texts_(texts), prefix_("txtTab" + std::to_string(panel) + "_") {}

    double operator[](int number) const { return texts_.value(name(number)); }
    void write(int number, double value) { texts_.write(name(number), value); }
    void writeRounded(int number, double value, int places) { texts_.writeRounded(name(number), value, places); }
    void raise(int number, int parts = 1) { texts_.raise(name(number), parts); }

private:
    std::string name(int number) const { return prefix_ + std::to_string(number); }
    PanelTexts& texts_;
    std::string prefix_;
};

// A button that computes.
constexpr PanelControl computeButton(std::string_view name, int row, int column, void (*compute)(PanelTexts&)) {
    return {
        .kind = PanelKind::Button, .name = name, .label = "Compute", .row = row, .column = column, .compute = compute};
}

}  // namespace torvane

#pragma once

#include <functional>
#include <string>

#include "calculators/calculator_groups.h"
#include "platform/form.h"

namespace torvane {

// One of the four tabbed calculator windows, drawn from its table.
class CalculatorWindow : public Form {
public:
    CalculatorWindow(Program& program, const CalculatorGroup& group);

protected:
    void build(QWidget& window) override;
    void dropControls() override {}
    void Form_Load() override;

private:
    const CalculatorGroup& group_;
};

}  // namespace torvane

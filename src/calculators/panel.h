#pragma once

#include <span>
#include <string>
#include <string_view>

namespace torvane {

// A calculator panel is data: a table of controls and the functions behind its buttons. The window draws any panel from
// its table and knows none by name.

// What a formula reads and writes: the texts and choices of a panel's controls, by name. Later steps read what earlier
// steps wrote, as text.
class PanelTexts {
public:
    virtual ~PanelTexts() = default;
    virtual std::string text(std::string_view box) const = 0;
    virtual void setText(std::string_view box, std::string_view text) = 0;
    // Entry selected in a list, from 0; -1 when none is.
    virtual int listIndex(std::string_view list) const = 0;
    // Number of the selected entry; Failure::Subscript when none is.
    virtual int itemData(std::string_view list) const = 0;
    // Whether an option or a check box is set.
    virtual bool isSet(std::string_view option) const = 0;

    // The lenient reading of a box: 0 for an empty one.
    double value(std::string_view box) const;
    // General form; a result beyond the range of a double is Failure::Overflow.
    void write(std::string_view box, double value);
    // Rounded half to even first.
    void writeRounded(std::string_view box, double value, int places);
    // Raises the box to the next whole number, or to the next 1/parts, by the text that stands in it: no tolerance.
    void raise(std::string_view box, int parts = 1);
};

enum class PanelKind {
    Heading,  // a text over the boxes of its column
    Label,    // a text without a box; in the cell of an option it stands before the option
    Input,
    // cell
    Result,  // read-only, in the colour of results
    List,
    Option,  // exclusive among the options of its panel
    Check,
    Button,  // computes; Enter in a box presses the next button of the table
    Help,    // speaks `label`
    Frame,   // a captioned frame; the rows that name it in `frame` stand inside, on a grid of its own
    Rule,    // a line across the panel
};

struct PanelEntry {
    std::string_view text;
    int itemData = 0;
};

// One control. A cell of the panel's grid, at `row` and `column`, is a label, a box and a unit behind it. The order of
// the table is the order of Tab.
struct PanelControl {
    PanelKind kind = PanelKind::Label;
    std::string_view name;   // of the control; empty for headings, plain labels and rules
    std::string_view label;  // before the box; caption of an option, a check box, a button or a frame; the spoken text
    int row = 0;
    int column = 0;
    std::string_view unit = {};                // behind the box
    std::string_view prefix = {};              // between label and box: "$"
    std::string_view start = {};               // text at the start; "set" for an option that is set, "first" for a
                                               // list that is set to its first entry each time its panel is shown
    std::span<const PanelEntry> entries = {};  // of a list
    std::string_view frame = {};               // the inner frame in which it stands; empty: the panel itself
    void (*compute)(PanelTexts&) = nullptr;    // of a button
};

struct Panel {
    std::string_view frame;    // frmTab1 and so on
    std::string_view caption;  // of the frame; may be empty
    std::span<const PanelControl> controls;
};

// Every panel, by trade.
std::span<const Panel> masonryPanels();
std::span<const Panel> framingPanels();
std::span<const Panel> finishesPanels();
std::span<const Panel> siteWorkPanels();

}  // namespace torvane

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
    // Text of the selected entry; Failure::Subscript when none is.
    virtual std::string listText(std::string_view list) const = 0;
    // Whether an option or a check box is set.
    virtual bool isSet(std::string_view option) const = 0;

    // The lenient reading of a box: 0 for an empty one.
    double value(std::string_view box) const;
    // General form; a result beyond the range of a double is Failure::Overflow.
    void write(std::string_view box, double value);
    // Rounded half to even first.
    void writeRounded(std::string_view box, double value, int places);
    // Raises the box to the next whole number, by the text that stands in it: no tolerance.
    void raise(std::string_view box);
};

enum class PanelKind {
    Heading,  // a text over a group of rows
    Label,    // a text without a box
    Input,
    Result,   // read-only
    List,
    Option,   // exclusive within its `group`
    Check,
    Button,
    Help,     // a help button that speaks `text`
    Frame,    // opens a captioned frame; the rows that name it in `group` stand inside
    Rule,     // a line across the panel
};

// One control. Rows and columns are cells of the panel's grid, each cell a label, a box and a unit; the label is a buddy
// of its box.
struct PanelControl {
    PanelKind kind = PanelKind::Label;
    std::string_view name;       // objectName; empty for plain labels
    std::string_view text;       // label, caption or spoken text
    int row = 0;
    int column = 0;
    std::string_view unit = {};  // behind the box
    std::string_view start = {};  // text at the start; "set" for an option or check box that is set
    std::string_view group = {};  // frame or option group that it belongs to
    std::span<const std::string_view> entries = {};  // of a list
    std::string_view prefix = {};                    // before the box, as "$"
    std::string_view colour = {};                    // of the text or ground, where one is given: "#rrggbb"
    int columnSpan = 1;
    void (*compute)(PanelTexts&) = nullptr;  // of a button
};

struct Panel {
    std::string_view frame;    // frmTab1 and so on
    std::string_view caption;  // of the frame; may be empty
    std::span<const PanelControl> controls;
};

// A tab of a calculator window. `frame` is empty for the two that show no panel.
struct CalculatorTab {
    std::string_view caption;
    std::string_view frame;
    std::string_view toolTip = {};
};

// Every panel of a room file: masonry and concrete, framing and roof, finishes, site work.
std::span<const Panel> masonryPanels();
std::span<const Panel> framingPanels();
std::span<const Panel> finishesPanels();
std::span<const Panel> siteWorkPanels();

}  // namespace torvane

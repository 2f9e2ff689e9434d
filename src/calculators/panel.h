#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace torvane {

// A calculator panel is a struct. Its boxes, lists, options and buttons are members in the order of Tab, each with its
// name, its label and its place, and the formulas stand behind the buttons. They take boxes as numbers:
//
//     squares = raised(area / 100);
//
// A number is read from the text in its box, so a later step calculates with what an earlier one wrote, rounded as it
// is shown. The window draws any panel and knows none by name.

enum class ControlKind {
    Heading,  // a text over the boxes of its column
    Label,    // a text without a box; in the cell of an option it stands before the option
    Input,
    Result,  // read-only, in the colour of results
    List,
    Option,  // exclusive among the options of its panel
    Check,
    Button,  // computes; Enter in a box presses the next button of the panel
    Help,    // speaks its label
    Frame,   // a captioned frame inside the panel, with a grid of its own
    Rule,    // a line across the panel
};

class Frame;
class Panel;

struct ListEntry {
    std::string_view text;
    int itemData = 0;
    double factor = 0;  // what it stands for in a formula, where that is not its item data
};

// What a control shows and does. A cell of the grid, at `row` and `column`, is a label, a box and a unit behind it.
struct ControlFace {
    ControlKind kind;
    std::string name;   // empty for headings, plain labels and rules
    std::string label;  // before the box; caption of an option, a button or a frame; the spoken text
    int row;
    int column;
    std::string unit = {};                    // behind the box
    std::span<const ListEntry> entries = {};  // of a list
    std::function<void()> compute = {};       // of a button
    std::string prefix = {};                  // between label and box: "$"
    std::string start = {};                   // text of a box at the start
    bool setAtStart = false;                  // of an option
    bool opensOnFirst = false;                // of a list: set to its first entry each time its panel is shown
    std::string says = {};                    // its name for who can't see the panel, where its row does not tell it
};

struct Control : ControlFace {
    Control(Frame& in, ControlFace face);
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Panel& panel;
    const Control* const frame;  // the inner frame in which it stands; null: the panel itself
};

// To be written, and then raised by the text in the box, without a tolerance: to the next whole number, or to the next
// 1/parts.
struct Raised {
    double value;
    int parts;
};
constexpr Raised raised(double value, int parts = 1) {
    return {value, parts};
}

// A text box, as the number in it.
struct Box : Control {
    using Control::Control;
    // The lenient reading: 0 for an empty box.
    operator double() const;
    // In the general form. Failure::Overflow beyond the range of a double, the box then unchanged.
    Box& operator=(double value);
    Box& operator=(Raised result);
};

struct List : Control {
    using Control::Control;
    // The selected entry; null when none is.
    const ListEntry* selected() const;
    // Its number; Failure::Subscript when none is selected.
    int itemData() const;
};

// An option or a check box: whether it is set.
struct Option : Control {
    using Control::Control;
    explicit operator bool() const;
};

struct Button : Control {
    using Control::Control;
};

// Makes the controls of a panel, or of a frame inside one. Those that a formula never asks for need no member: they
// stand behind the members.
class Frame {
public:
    Frame(Panel& panel, const Control* inner) : panel_(panel), inner_(inner) {}
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    using Text = const std::string&;
    Box input(Text name, Text label, int row, int column, Text unit = "") {
        return {*this, {ControlKind::Input, name, label, row, column, unit}};
    }
    Box result(Text name, Text label, int row, int column, Text unit = "") {
        return {*this, {ControlKind::Result, name, label, row, column, unit}};
    }
    List list(Text name, Text label, int row, int column, std::span<const ListEntry> entries) {
        return {*this, {ControlKind::List, name, label, row, column, "", entries}};
    }
    Option option(Text name, Text caption, int row, int column) {
        return {*this, {ControlKind::Option, name, caption, row, column}};
    }
    Option check(Text name, Text caption, int row, int column) {
        return {*this, {ControlKind::Check, name, caption, row, column}};
    }
    Button button(Text name, Text caption, int row, int column, std::function<void()> compute) {
        return {*this, {ControlKind::Button, name, caption, row, column, "", {}, std::move(compute)}};
    }
    void heading(Text text, int row, int column) { add({ControlKind::Heading, "", text, row, column}); }
    void label(Text text, int row, int column) { add({ControlKind::Label, "", text, row, column}); }
    void rule(int row) { add({ControlKind::Rule, "", "", row, 0}); }
    void help(Text name, int row, int column, Text spoken) { add({ControlKind::Help, name, spoken, row, column}); }

private:
    friend struct Control;
    void add(ControlFace face);

    Panel& panel_;
    const Control* inner_;
};

// A frame inside a panel.
struct InnerFrame : Control, Frame {
    InnerFrame(Frame& in, Text frameName, Text caption, int atRow, int atColumn)
        : Control(in, {ControlKind::Frame, frameName, caption, atRow, atColumn}), Frame(panel, this) {}
};

// What stands in the controls of a panel at the moment.
class PanelDesk {
public:
    virtual ~PanelDesk() = default;
    virtual std::string text(const Box& box) const = 0;
    virtual void setText(const Box& box, std::string_view text) = 0;
    // Index of the selected entry; -1 when none is.
    virtual int selected(const List& list) const = 0;
    virtual bool isSet(const Option& option) const = 0;
};

// Derived structs are made where they stay: their controls know them by address.
class Panel : public Frame {
public:
    Panel(Text frameName, Text frameCaption, int help)
        : Frame(*this, nullptr), frame(frameName), caption(frameCaption), helpContext(help) {}
    virtual ~Panel() = default;
    // In the order of Tab.
    const std::vector<const Control*>& controls() const { return controls_; }

    const std::string frame;    // frmTab1 and so on
    const std::string caption;  // of the frame; may be empty
    const int helpContext;
    PanelDesk* desk = nullptr;  // to be set before a formula runs

private:
    friend struct Control;
    friend class Frame;
    std::vector<const Control*> controls_;
    std::deque<Control> withoutMember_;
};

using MakePanel = std::unique_ptr<Panel> (*)();

}  // namespace torvane

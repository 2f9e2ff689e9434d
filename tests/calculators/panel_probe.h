#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "calculators/panel.h"
#include "values/failure.h"

namespace torvane::test {

// A panel without a window: its controls as texts. Presses the buttons as a user would, and shows what stands where.
class PanelProbe : public PanelTexts {
public:
    PanelProbe(std::span<const Panel> panels, std::string_view frame) {
        for (const Panel& panel : panels)
            if (panel.frame == frame) panel_ = &panel;
        if (!panel_) throw std::logic_error("no such panel: " + std::string(frame));
        for (const PanelControl& control : panel_->controls) {
            if (control.name.empty()) continue;
            if (control.kind == PanelKind::List)
                chosen_[std::string(control.name)] = -1;
            else
                texts_[std::string(control.name)] = control.start;
        }
    }
    std::string text(std::string_view box) const override { return texts_.at(std::string(box)); }
    void setText(std::string_view box, std::string_view text) override { texts_.at(std::string(box)) = text; }
    int listIndex(std::string_view list) const override { return chosen_.at(std::string(list)); }
    int itemData(std::string_view list) const override {
        const int index = listIndex(list);
        if (index < 0) fail(Failure::Subscript);
        return find(list).entries[static_cast<std::size_t>(index)].itemData;
    }
    bool isSet(std::string_view option) const override { return text(option) == "set"; }

    void choose(std::string_view list, int index) { chosen_.at(std::string(list)) = index; }
    void set(std::string_view option) {
        for (const PanelControl& control : panel_->controls)
            if (control.kind == PanelKind::Option) setText(control.name, "");
        setText(option, "set");
    }
    void press(std::string_view button) { find(button).compute(*this); }
    // Types into boxes named prefix + key.
    void type(std::string_view prefix, const std::vector<std::pair<std::string, std::string>>& texts) {
        for (const auto& [key, text] : texts) setText(std::string(prefix) + key, text);
    }
    const Panel& panel() const { return *panel_; }

private:
    const PanelControl& find(std::string_view name) const {
        for (const PanelControl& control : panel_->controls)
            if (control.name == name) return control;
        throw std::logic_error("no such control: " + std::string(name));
    }
    const Panel* panel_ = nullptr;
    std::map<std::string, std::string> texts_;
    std::map<std::string, int> chosen_;
};

}  // namespace torvane::test

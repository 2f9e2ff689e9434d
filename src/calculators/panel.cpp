#include "calculators/panel.h"

#include <cmath>

#include "values/failure.h"
#include "values/numbers.h"

namespace torvane {

Control::Control(Frame& in, ControlFace face) : ControlFace(std::move(face)), panel(in.panel_), frame(in.inner_) {
    panel.controls_.push_back(this);
}

Box::operator double() const {
    return lenientNumber(panel.desk->text(*this));
}

Box& Box::operator=(double value) {
    panel.desk->setText(*this, generalText(finite(value)));
    return *this;
}

Box& Box::operator=(Raised result) {
    *this = result.value;
    const double written = *this;
    const double whole = std::floor(written);
    *this = whole + std::ceil((written - whole) * result.parts) / result.parts;
    return *this;
}

const ListEntry* List::selected() const {
    const int index = panel.desk->selected(*this);
    return index < 0 ? nullptr : &entries[static_cast<std::size_t>(index)];
}

int List::itemData() const {
    const ListEntry* entry = selected();
    if (!entry) fail(Failure::Subscript);
    return entry->itemData;
}

Option::operator bool() const {
    return panel.desk->isSet(*this);
}

void Frame::add(ControlFace face) {
    panel_.withoutMember_.emplace_back(*this, std::move(face));
}

}  // namespace torvane

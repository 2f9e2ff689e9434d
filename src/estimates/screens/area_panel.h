#pragma once

namespace torvane {

class frmOrder;

// The area panel of the estimate screen: take-off quantities of a room from its dimensions, and the way of one of them
// into the quantity box. Nothing of it is stored. Called at each load.
void connectAreaPanel(frmOrder& screen);

}  // namespace torvane

#pragma once

namespace torvane {

class frmOrder;

// The area panel of the estimate screen: computes take-off quantities from the dimensions of a room, and puts the one
// that is picked into the quantity box. Nothing of it is stored. Called at each load.
void connectAreaPanel(frmOrder& screen);

}  // namespace torvane

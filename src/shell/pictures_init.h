#pragma once

namespace torvane {

// Makes the drawings under ":/art/" known to the program; call it once, ahead of the first window.
void initPictures();

}  // namespace torvane

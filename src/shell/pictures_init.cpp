#include "shell/pictures_init.h"

#include <QtGlobal>

// The linker would drop the resource of a static library unless somebody asks for it, and the macro must stand outside
// every namespace.
static void registerDrawings() {
    Q_INIT_RESOURCE(art);
}

namespace torvane {

void initPictures() {
    registerDrawings();
}

}  // namespace torvane

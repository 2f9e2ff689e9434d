#include "shell/frm_about.h"

#include "host/host.h"
#include "shell/title.h"
#include "widgets/pictures.h"

namespace torvane {

frmAbout::frmAbout(Program& program) : FormOf(program, "frmAbout") {
    setHelpContext(2);
}

void frmAbout::Form_Load() {
    on(*this, ui().cmdClose, &QAbstractButton::clicked, [this] { Unload(); });
    ui().lblName->setText(QLatin1String(title));
    constexpr int pictureSize = 64;
    ui().Image1->setPixmap(
        picture(QStringLiteral("program")).pixmap(QSize(pictureSize, pictureSize), window().devicePixelRatioF()));
    ui().txtFolder->setText(program().host().programDirectory());
    ui().lblVersions->setText(QStringLiteral("Qt %1").arg(QLatin1String(qVersion())));
    ui().cmdClose->setFocus();
    program().StartUp(*this);
}

}  // namespace torvane

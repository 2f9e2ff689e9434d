#pragma once

#include "screens/form.h"
#include "ui_frm_about.h"

namespace torvane {

// What the program is, and where its data lies.
class frmAbout : public FormOf<Ui::frmAbout> {
public:
    explicit frmAbout(Program& program);

protected:
    void Form_Load() override;
};

}  // namespace torvane

#pragma once

#include <memory>

#include "datastore/store.h"
#include "screens/form.h"
#include "ui_frm_blank.h"

namespace torvane {

// Edits the shared notes, one text for all estimates.
class frmBlank : public FormOf<Ui::frmBlank> {
public:
    explicit frmBlank(Program& program);

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdOk_Click();
    std::unique_ptr<Connection> connection_;
};

}  // namespace torvane

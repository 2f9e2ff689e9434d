#pragma once

#include <memory>

#include "datastore/store.h"
#include "screens/form.h"

class Ui_frmBlank;

namespace torvane {

// Edits the shared notes, one text for all estimates.
class frmBlank : public FormOf<Ui_frmBlank> {
public:
    explicit frmBlank(Program& program);
    ~frmBlank() override;

protected:
    void Form_Load() override;
    void Form_Unload() override;

private:
    void cmdOk_Click();
    std::unique_ptr<Connection> connection_;
};

}  // namespace torvane

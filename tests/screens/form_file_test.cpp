#include "screens/form.h"
#include "support/screen_test.h"
#include "ui_form_file.h"

namespace torvane {

namespace {

class Drawn : public FormOf<Ui::FormFile> {
public:
    explicit Drawn(Program& program) : FormOf(program, "frmDrawn") {}
    std::string nameAtLoad;

protected:
    void Form_Load() override { nameAtLoad = ui().txtName->Text(); }
};

using FormFileTest = ScreenTest;

TEST_F(FormFileTest, TouchingAControlLoadsTheScreen) {
    Drawn form(program);
    EXPECT_FALSE(form.loaded());
    form.ui().txtName->setText("typed");
    EXPECT_TRUE(form.loaded());
    EXPECT_EQ(form.nameAtLoad, "as drawn");
    EXPECT_EQ(form.window().objectName(), "frmDrawn");
    EXPECT_EQ(form.caption(), "From a file");
    form.Show();
    EXPECT_EQ(form.ui().txtName->Text(), "typed");
    EXPECT_EQ(utf8(form.ui().cmdAdd->accessibleName()), "Add");
    EXPECT_EQ(utf8(form.ui().cmdAdd->picture()), "add");
    key(*form.ui().ListView1, Qt::Key_N, Qt::AltModifier);
    EXPECT_TRUE(form.ui().txtName->hasFocus());
    form.Unload();
    EXPECT_EQ(form.ui().txtName->Text(), "as drawn");
}

TEST_F(FormFileTest, MissingNameIsToldWithThoseThatThereAre) {
    Drawn form(program);
    try {
        find<PictureButton>(form, "cmdEdit");
        FAIL() << "found";
    } catch (const std::runtime_error& failure) {
        EXPECT_STREQ(failure.what(), "no \"cmdEdit\" in frmDrawn; there are: cmdAdd");
    }
}

}  // namespace

}  // namespace torvane

#include "masters/screens/frm_category.h"

#include <QLabel>

#include "masters/screens/category_pick.h"
#include "platform/help_contexts.h"
#include "values/numbers.h"

namespace torvane {

namespace {

std::string_view guidance(std::string_view which) {
    if (which == "A")
        return "Enter the category name, select parent category and press the 'Add' button to add a new category";
    if (which == "D")
        return "Select the category you wish to delete from the table by clicking that row and press the 'Delete' "
               "button.";
    if (which == "E")
        return "Double click on the category row that you wish to edit and change the category name or parent category "
               "in the window that appears.";
    if (which == "S")
        return "Select category by double clicking the desired category row and pressing the 'Select' button.";
    return "";
}

}  // namespace

frmCategory::frmCategory(Program& program) : FormOf(program, "frmCategory"), catMast_(program, *this) {
    setHelpContext(HelpContext::categories);
}

clsCategory& frmCategory::Cat() {
    if (!cat_) cat_ = std::make_unique<clsCategory>(program().environment());
    return *cat_;
}

ListSkeleton::Controls frmCategory::controls() {
    return {ui().ListView1, ui().txtCatName, ui().CmdPrev, ui().CmdNext, ui().LblRecords};
}

std::vector<ListSkeleton::Column> frmCategory::columns() const {
    return {{{"Category ID", 0}, ""},
            {{"Category Name", 2400}, "CatName"},
            {{"No. Of Items", 1200, true}, "totitm"},
            // By the parent's key, not by its name, which is what the column shows.
            {{"Parent Category", 3600}, "ParentCategory"}};
}

std::vector<ListSkeleton::Mode> frmCategory::modes() {
    return {{"A", "Add Category", ui().cmdAdd},
            {"D", "Delete Category", ui().cmdDel},
            {"E", "Edit Category", ui().CmdEdit},
            {"S", "Select Category", ui().CmdSelect}};
}

void frmCategory::Form_Load() {
    cat_.reset();  // the list's own object is new at each load
    connectList(ui());
    on(*this, ui().cmdHelp2, &QAbstractButton::clicked, [this] { cmdHelp2_Click(); });
    // No event opens it in this window.
    addRelatedMenu({{"mnuRelManf", "View Related Manufacturers", "Manufacturers associated with "},
                    {"mnuRelSup", "View Related Suppliers", "Suppliers associated with "}});
    ui().lblExplain->setText(qstring(guidance(Which)));
    program().StartUp(*this);
    loadList("CatName");
    FillCatg(*ui().cmbParent, Cat());
}

std::optional<RowArray> frmCategory::readAllRows() {
    return Cat().GetAllCategories(Page, PageCount, FldName, AscOrDesc);
}

std::optional<RowArray> frmCategory::readSearchedRows() {
    return Cat().GetSearchCategories(Page, PageCount, FldName, AscOrDesc);
}

std::vector<std::string> frmCategory::rowTexts(const RowArray& rows, int row) {
    Cat().Catid = int16OrZero(rows(3, row));
    return {textOrEmpty(rows(0, row)), textOrEmpty(rows(1, row)), textOrEmpty(rows(2, row)), Cat().GetCatg()};
}

// --- Adding, in the window itself ------------------------------------------------------------------------------------

void frmCategory::enableBoxes(bool enabled) {
    ui().txtCatName->setEnabled(enabled);
    ui().cmbParent->setEnabled(enabled);
}

void frmCategory::ClearClass() {
    Cat().Catid = 0;
    Cat().Catname.clear();
    Cat().ParentCategory = 0;
    ui().txtCatName->setText("");
    ui().cmbParent->select(-1);
}

void frmCategory::saveNew() {
    const Program::Doing doing(program(), "saving the category");
    Cat().Catname = ui().txtCatName->Text();
    Cat().ParentCategory =
        ui().cmbParent->ListIndex() < 0 ? std::int16_t{0} : narrowToInt16(ui().cmbParent->ItemData());
    if (Cat().Validate()) {
        Cat().Save();
        if (Which == "A")
            program().say("Category Added ", "Inventory");
        else if (Which == "E" || Which == "EE")
            program().say("Category Edited ", "Inventory");
    } else {
        program().say("Please enter Valid Data", "Inventory");
    }
    refill();
    ClearClass();
}

void frmCategory::cmdAdd_Click() {
    if (Which == "A") {
        Cat().AddEditDel = "A";
        saveNew();
    } else if (Which == "AE") {
        Which = "A";  // back from the view of a double click
    } else {
        return;
    }
    enableBoxes(true);
    ui().txtCatName->setFocus();
}

// --- What the buttons and the rows do --------------------------------------------------------------------------------

void frmCategory::cmdSearch_Click() {
    Cat().Catname = ui().txtCatName->Text();
    Page = 1;
    SearchItem();
    ui().txtCatName->setFocus();
    ui().txtCatName->selectAll();
}

void frmCategory::showEntryForm(std::int16_t key, std::string_view flag) {
    catMast_.Cat().Catid = key;
    catMast_.Cat().GetCatg();
    catMast_.Cat().AddEditDel = flag;
    catMast_.ShowModal();
}

void frmCategory::CmdEdit_Click() {
    if (!hasRows()) return;
    showEntryForm(selectedKey16(), "E");
    refill();
}

void frmCategory::ListView1_DblClick() {
    if (!hasRows()) return;
    Cat().Catid = selectedKey16();
    Cat().GetCatg();
    Cat().AddEditDel = "E";
    ui().txtCatName->setText(Cat().Catname);
    ui().cmbParent->selectItemData(Cat().ParentCategory);
    if (Which == "E") {
        CmdEdit_Click();
    } else if (Which == "A" || Which == "D") {
        enableBoxes(false);
        Which += 'E';
    }
    RefreshGrid();
}

void frmCategory::deleteRecord(std::int16_t key) {
    Cat().Catid = key;
    Cat().Delete();
}

void frmCategory::cmdDel_Click() {
    if (!hasRows()) return;
    const std::int16_t key = selectedKey16();
    const std::string name = selectedName();
    Cat().Catid = key;
    if (Cat().GetTotalItems() > 0) {
        program().say(
            "Can not delete category '" + name + "'. Please delete or reassign items that belong to it first.",
            "Inventory");
    } else if (program().confirm("Are you sure you want to Delete ' " + name + " '", "Inventory")) {
        Cat().AddEditDel = "D";
        deleteRecord(key);
    }
    RefreshGrid();
    ui().txtCatName->setText("");
    enableSearch();
}

void frmCategory::CmdSelect_Click() {
    const Program::Doing doing(program(), "taking the selected category");
    const std::int16_t key = selectedKey16();
    if (!pick_) fail(Failure::ObjectNotSet);
    pick_->takeCategory(key, selectedName());
    Unload();
}

void frmCategory::cmdHelp2_Click() {
    program().speakHelp(
        "Enter the name you want to search in the 'Category name' box here and press the 'Search' button.");
}

void frmCategory::cmdMainHelp_Click() {
    program().speakHelp(
        "To enter a category, you only need to give the category name. You can create the multiple level of hierarchy "
        "for "
        "the categories. You will need to select the 'Parent category' under which you want your category to appear. "
        "\n\n"
        " This screen also shows list of all the categories in a table. The first column shows category name, second "
        "column shows number of items belonging to that category and third column shows the parent category name (if "
        "any). The table can be sorted by clicking on the column header row.");
}

}  // namespace torvane

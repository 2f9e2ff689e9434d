#include "masters/screens/frm_category.h"

#include <QLabel>

#include "masters/screens/record_buttons.h"
#include "ui_frm_category.h"
#include "values/numbers.h"
#include "widgets/texts.h"

namespace torvane {

namespace {

// What the line of guidance says in a mode.
constexpr std::pair<std::string_view, std::string_view> guidances[] = {
    {"A", "Enter the category name, select parent category and press the 'Add' button to add a new category"},
    {"D", "Select the category you wish to delete from the table by clicking that row and press the 'Delete' button."},
    {"E",
     "Double click on the category row that you wish to edit and change the category name or parent category in the "
     "window that appears."},
    {"S", "Select category by double clicking the desired category row and pressing the 'Select' button."},
};

}  // namespace

frmCategory::frmCategory(Program& program, std::function<void(std::int16_t, const std::string&)> takeCategory)
    : FormOf(program, "frmCategory"), takeCategory_(std::move(takeCategory)), catMast_(program, *this) {
    setHelpContext(52);
}

frmCategory::~frmCategory() = default;

PagedList::Parts frmCategory::listParts() {
    return {
        .controls = [this]() -> PagedList::Controls {
            return {ui().ListView1, ui().txtCatName, ui().CmdPrev, ui().CmdNext, ui().LblRecords};
        },
        .columns = {{{"Category ID", 0}, ""},
                    {{"Category Name", 2400}, "CatName"},
                    {{"No. Of Items", 1200, true}, "totitm"},
                    // By the parent's key, not by its name, which is what the column shows.
                    {{"Parent Category", 3600}, "ParentCategory"}},
        .modes = [this]() -> std::vector<PagedList::Mode> {
            return {{"A", "Add Category", ui().cmdAdd},
                    {"D", "Delete Category", ui().cmdDel},
                    {"E", "Edit Category", ui().CmdEdit},
                    {"S", "Select Category", ui().CmdSelect}};
        },
        .data = [this]() -> DataClass& { return Cat(); },
        .readAll = [this](auto&&... page) { return Cat().GetAllCategories(page...); },
        .readSearched = [this](auto&&... page) { return Cat().GetSearchCategories(page...); },
        .rowTexts = [this](const RowArray& rows, int row) { return rowTexts(rows, row); },
        .notFound = "Category Not Found",
        .offerToAdd = "Category Not Found : Would You Like To Add ? ",
        .searchedByName = [] { return true; },
        .add = [this] { cmdAdd_Click(); },
    };
}

void frmCategory::Form_Load() {
    Cat.reset();  // the list's own record is new at each load
    on(*this, ui().cmdSearch, &QAbstractButton::clicked, &frmCategory::cmdSearch_Click);
    on(*this, ui().CmdAll, &QAbstractButton::clicked, [this] { list_.RefreshGrid(); });
    on(*this, ui().cmdAdd, &QAbstractButton::clicked, &frmCategory::cmdAdd_Click);
    on(*this, ui().CmdEdit, &QAbstractButton::clicked, &frmCategory::CmdEdit_Click);
    on(*this, ui().cmdDel, &QAbstractButton::clicked, &frmCategory::cmdDel_Click);
    on(*this, ui().CmdSelect, &QAbstractButton::clicked, &frmCategory::CmdSelect_Click);
    on(*this, ui().cmdMainHelp, &QAbstractButton::clicked, &frmCategory::cmdMainHelp_Click);
    on(*this, ui().cmdHelp2, &QAbstractButton::clicked, &frmCategory::cmdHelp2_Click);
    on(*this, ui().cmdExit, &QAbstractButton::clicked, [this] { Unload(); });
    on(*this, ui().ListView1, &ReportList::DblClick, &frmCategory::ListView1_DblClick);
    // No event opens it in this window.
    addRelatedMenu(*this, list_,
                   {{"mnuRelManf", "View Related Manufacturers", "Manufacturers associated with "},
                    {"mnuRelSup", "View Related Suppliers", "Suppliers associated with "}});
    for (const auto& [which, guidance] : guidances)
        if (which == Which) ui().lblExplain->setText(qstring(guidance));
    program().StartUp(*this);
    list_.load("CatName");
    FillCatg(*ui().cmbParent, Cat());
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
    list_.refill();
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
    list_.startSearch();
}

void frmCategory::CmdEdit_Click() {
    if (!list_.hasRows()) return;
    catMast_.Cat().Catid = list_.selectedKey16();
    catMast_.Cat().GetCatg();
    catMast_.Cat().AddEditDel = "E";
    catMast_.ShowModal();
    list_.refill();
}

void frmCategory::ListView1_DblClick() {
    if (!list_.hasRows()) return;
    Cat().Catid = list_.selectedKey16();
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

void frmCategory::cmdDel_Click() {
    if (!list_.hasRows()) return;
    const std::int16_t key = list_.selectedKey16();
    const std::string name = list_.selectedName();
    Cat().Catid = key;
    if (Cat().GetTotalItems() > 0) {
        program().say(
            "Can not delete category '" + name + "'. Please delete or reassign items that belong to it first.",
            "Inventory");
    } else if (program().confirm("Are you sure you want to Delete ' " + name + " '", "Inventory")) {
        Cat().AddEditDel = "D";
        Cat().Catid = key;
        Cat().Delete();
    }
    list_.RefreshGrid();
    list_.clearSearch();
}

void frmCategory::CmdSelect_Click() {
    const Program::Doing doing(program(), "taking the selected category");
    takeCategory_(list_.selectedKey16(), list_.selectedName());
    Unload();
}

void frmCategory::cmdHelp2_Click() {
    program().speakHelp(
        "Enter the name you want to search in the 'Category name' box here and press the 'Search' button.");
}

void frmCategory::cmdMainHelp_Click() {
    program().speakHelp(
        "To enter a category, you only need to give the category name. You can create the multiple level of hierarchy "
        "for the categories. You will need to select the 'Parent category' under which you want your category to "
        "appear. \n\n This screen also shows list of all the categories in a table. The first column shows category "
        "name, second column shows number of items belonging to that category and third column shows the parent "
        "category name (if any). The table can be sorted by clicking on the column header row.");
}

}  // namespace torvane

"""Roads on which focus, questions and windows meet."""
import filecmp
import os
import unittest

from desk import PROGRAM, DeskTest, active, press, write, xdotool

ESTIMATE = "Bid Estimate Screen"
ITEMS = "Items List"
NOTES = "Blank Area for Customer Notes"
FIRST_ITEM = "ItemName = 'Aluminum gutter, 5 in'"  # which a new estimate shows


class EstimateRoads(DeskTest):
    def setUp(self):
        super().setUp()
        self.start()
        self.choose("Estimates", "New Estimate")
        self.comes(ESTIMATE)

    def prices(self):
        return self.rows(f"select Material, Labor from Item where {FIRST_ITEM}")[0]

    def asks_for(self, price, answer):
        self.box("Change master file price?",
                 f"You have changed the {price} Price. Do you want to update this price in Main File?", answer)

    def test_from_the_customer_to_the_paper(self):
        (name,) = self.rows("select CustName from Customer order by CustName")[0]
        self.click("Select ")
        self.comes("Select Customer")
        self.click(name, role="table cell", times=2)
        self.comes(ESTIMATE)
        self.reads("Customer Name", name)
        self.enter("Quantity", "3")
        self.click("Add")
        self.click("Save")
        self.box("Inventory", "Estimate Saved", "Return")
        self.assertEqual(self.rows("select Qty from OrderItem order by rowid desc")[0], (3,))
        self.click("Print Proposal")
        self.box(PROGRAM, "In case you made any changes to the proposal, you will need to save your changes first so "
                 "that the changes appear in the print out.", "Return")
        self.comes("Estimate Proposal")

    def test_a_changed_price_is_asked_for_once_and_the_keys_go_where_the_user_went(self):
        material, labor = self.prices()
        self.enter("Materials Price", "9.5")
        press("Tab")
        self.asks_for("Material", "Escape")
        self.comes(ESTIMATE)
        write("7")
        self.reads("Labor", "7")
        self.click("Notes : ", role="text")
        self.asks_for("Labor", "Return")
        self.box(PROGRAM, "Labor price updated in master file", "Return")
        self.comes(ESTIMATE)
        write("by hand")
        self.reads("Notes : ", "by hand")
        self.assertEqual(self.prices(), (material, 7))

    def test_the_same_when_the_user_went_to_another_window(self):
        before = self.prices()
        self.click("Add Multiple Items from Sheet")
        self.comes(ITEMS)
        for price in ("8.1", "8.2", "8.3"):
            self.bring(ESTIMATE)
            self.enter("Materials Price", price)
            xdotool("search", "--name", f"^{ITEMS}$", "windowactivate")
            self.asks_for("Material", "Escape")
            self.comes(ITEMS)
        self.assertEqual(self.prices(), before)

    def test_nothing_is_asked_when_the_screen_is_closed_in_the_midst_of_a_price(self):
        self.enter("Materials Price", "9.5")
        press("alt+F4")
        self.goes(ESTIMATE)
        self.comes("Main Menu")


class OfficeRoads(DeskTest):
    def setUp(self):
        super().setUp()
        self.start()

    def new_item(self):
        self.choose("Mater Tables", "Item", "Add")
        self.comes("Add Item")
        self.click("Add", role="push button")
        self.comes("Item Master")

    def test_a_refusal_stands_over_its_form_and_gives_the_keys_back(self):
        self.new_item()
        self.click("Apply")
        self.box("Item Details", "Enter Item Description", "Return")
        self.box("Inventory", "Please enter Valid Data", "Return")
        self.comes("Item Master")
        self.enter("Item Description", "Ridge board")
        press("Tab", "Tab")
        write("4")
        self.reads("Default Quantity", "4")

    def test_the_help_is_of_use_beside_a_form_that_must_be_answered(self):
        self.new_item()
        press("F1")
        self.comes("Torvane Help")
        self.click("Search", role="page tab")
        self.until(lambda: press("Tab") or self.focused() == "Page", "Tab does not reach the page")
        press("alt+F4")
        self.goes("Torvane Help")
        self.comes("Item Master")
        self.click("Cancel")
        self.comes("Add Item")

    def test_calculators_by_keys_alone(self):
        self.comes("Main Menu")
        press("alt", *["Right"] * 3, "Down", "Down", "Right", "Down", "Return")
        self.comes("Calculators")
        self.until(lambda: self.focused() == "Length of room (feet)", "the first box has not got the keys")
        write("12")
        press("Tab")
        write("10")
        press("Return")
        self.reads("Ceiling SF", "120")

    def test_backup_and_restore(self):
        copy = self.home + "/Monday.bak"
        for entry, dialog, asked, done in (("Backup", "Save As", False, "Exported"),
                                           ("Backup", "Save As", True, "Exported"),
                                           ("Restore from Backup", "Open", False, "Imported")):
            self.choose("File", entry)
            self.comes(dialog)
            self.enter("File name:", copy)
            press("Return")
            if asked:
                self.box("Take Backup", "File already Exists. Overwrite it?", "Return")
            self.box("Success", "Data File " + done, "Return")
        self.assertTrue(filecmp.cmp(copy, self.database(), shallow=False))

    def test_the_program_ends_with_its_last_window(self):
        self.choose("Notes Area")
        self.comes(NOTES)
        self.bring("Main Menu")
        press("alt+F4")
        self.goes("Main Menu")
        self.comes(NOTES)
        press("alt+F4")
        self.ends_with(0)


class BadDays(DeskTest):
    def ends_by(self, failure):
        """The box of a failure that the program can't go on with, and the end."""
        self.until(lambda: active() == PROGRAM and f"Run-time error {failure}\\n" in " ".join(self.in_front()),
                   f"no failure {failure}")
        press("Return")
        self.ends_with(1)

    def test_a_second_copy_ends_and_leaves_the_first_alone(self):
        self.start()
        self.comes("Main Menu")
        first = self.program
        self.start()
        self.ends_by(91)
        self.program = first
        self.choose("Notes Area")
        self.comes(NOTES)

    def test_a_full_disk(self):
        before = self.rows("select * from OrderInfo")
        self.start(largest_file=os.path.getsize(self.database()))
        self.choose("Notes Area")
        self.comes(NOTES)
        xdotool("type", "--delay", 1, "brick " * 2000)
        self.click("Ok")
        self.ends_by(10)
        self.assertEqual(self.rows("pragma integrity_check"), [("ok",)])
        self.assertEqual(self.rows("select * from OrderInfo"), before)


if __name__ == "__main__":
    unittest.main(verbosity=2)

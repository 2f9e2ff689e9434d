#pragma once

#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <string>
#include <vector>

#include "screens/form.h"
#include "support/screen_test.h"
#include "widgets/date_box.h"
#include "widgets/drop_list.h"
#include "widgets/report_list.h"
#include "widgets/text_box.h"

namespace torvane {

// A screen with one control of each kind, which does what its test says.
class Probe : public Form {
public:
    using Form::Form;

    std::function<void()> whenLoaded = [] {};

    TextBox* first;
    TextBox* second;
    DropList* choice;
    DateBox* date;
    ReportList* list;
    QPushButton* button;

protected:
    void build(QWidget& window) override {
        auto* rows = new QVBoxLayout(&window);
        auto* menu = new QMenuBar(&window);
        menu->addMenu("&File")->addAction("Close");
        rows->setMenuBar(menu);
        rows->addWidget(first = new TextBox(&window));
        rows->addWidget(second = new TextBox(&window));
        rows->addWidget(choice = new DropList(&window));
        rows->addWidget(date = new DateBox(&window));
        rows->addWidget(list = new ReportList(&window));
        rows->addWidget(button = new QPushButton("Go", &window));
        choice->fill({{"one", 1}, {"two", 2}, {"three", 3}});
        list->setColumns({{"ID", 0}, {"Name", 1800}, {"Price", 1200, true}});
        list->AddRows({{"7", "Brick", "0.50"}, {"8", "Mortar", "4"}, {"9", "Sand", "12"}});
    }
    void dropControls() override {}
    void Form_Load() override { whenLoaded(); }
};

// What happened, in order.
class ProbeTest : public ScreenTest {
protected:
    using Mouse = void (*)(QWindow*, Qt::MouseButton, Qt::KeyboardModifiers, QPoint, int);
    // As the window system gives it.
    static void mouse(Mouse act, QWidget& in, QPoint place, Qt::KeyboardModifiers held = {}) {
        act(in.window()->windowHandle(), Qt::LeftButton, held, in.mapTo(in.window(), place), -1);
    }
    void note(const std::string& what) { log += (log.empty() ? "" : ", ") + what; }
    std::string log;
};

}  // namespace torvane

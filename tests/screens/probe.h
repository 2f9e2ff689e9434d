#pragma once

#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>
#include <functional>
#include <string>
#include <vector>

#include "screens/form.h"
#include "widgets/date_box.h"
#include "widgets/drop_list.h"
#include "widgets/report_list.h"
#include "widgets/text_box.h"

namespace torvane {

// A screen with one control of each kind, which does what its test says.
class Probe : public Form {
public:
    using Form::Form;

    std::function<void()> whenLoaded;
    std::function<void()> whenUnloaded;
    int loads = 0;
    int unloads = 0;

    // Null while the screen is not loaded.
    TextBox* first = nullptr;
    TextBox* second = nullptr;
    DropList* choice = nullptr;
    DateBox* date = nullptr;
    ReportList* list = nullptr;
    QPushButton* button = nullptr;
    QMenuBar* menu = nullptr;

protected:
    void build(QWidget& window) override {
        auto* rows = new QVBoxLayout(&window);
        menu = add(new QMenuBar(&window), "menu");
        menu->addMenu("&File")->addAction("Close");
        rows->setMenuBar(menu);
        rows->addWidget(first = add(new TextBox(&window), "first"));
        rows->addWidget(second = add(new TextBox(&window), "second"));
        rows->addWidget(choice = add(new DropList(&window), "choice"));
        rows->addWidget(date = add(new DateBox(&window), "date"));
        rows->addWidget(list = add(new ReportList(&window), "list"));
        rows->addWidget(button = add(new QPushButton("Go", &window), "button"));
        choice->fill({{"one", 1}, {"two", 2}, {"three", 3}});
        list->setColumns({{"ID", 0}, {"Name", 1800}, {"Price", 1200, true}});
        list->AddRows({{"7", "Brick", "0.50"}, {"8", "Mortar", "4"}, {"9", "Sand", "12"}});
    }
    void dropControls() override {
        first = second = nullptr;
        choice = nullptr;
        date = nullptr;
        list = nullptr;
        button = nullptr;
        menu = nullptr;
    }
    void Form_Load() override {
        ++loads;
        if (whenLoaded) whenLoaded();
    }
    void Form_Unload() override {
        ++unloads;
        if (whenUnloaded) whenUnloaded();
    }

private:
    template <class Control>
    Control* add(Control* control, const char* name) {
        control->setObjectName(name);
        return control;
    }
};

}  // namespace torvane

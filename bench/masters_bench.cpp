#include <QApplication>
#include <QEvent>
#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches.h"
#include "harness.h"
#include "masters/screens/frm_category.h"
#include "masters/screens/frm_item.h"
#include "sample.h"
#include "screens/program.h"
#include "ui_frm_item.h"

// The windows of the catalog at its largest: each act is answered within a frame of the screen, and a further page at
// once.

namespace torvane::bench {

namespace {

constexpr double frame = 1000.0 / 60;
constexpr double furtherPage = 5;
constexpr int rounds = 15;

// The list, with its page in reach: nobody turns two thousand pages to measure the last one.
class ItemList : public frmItem {
public:
    using frmItem::frmItem;
    using frmItem::list;
};

class Catalogue {
public:
    explicit Catalogue(Sample& sample) : program_({sample.host, sample.store}, leaveProcess) {}
    void act(const std::function<void()>& handler) { program_.guarded(handler); }

private:
    Program program_;

public:
    frmCategory category{program_, {}};
    ItemList item{program_, category};
};

// From the act to the painted window.
void measure(const std::string& name, double most, Catalogue& catalogue, const std::function<void()>& act,
             const std::function<void()>& after = {}) {
    auto work = [&] {
        catalogue.act(act);
        QApplication::processEvents();
    };
    std::vector<double> times;
    for (int round = 0; round < rounds; ++round) {
        times.push_back(timed(work));
        if (after) catalogue.act(after);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    print(name, {.least = most}, median(times), 0);
}

void opening(const char* name, Catalogue& catalogue, Form& form) {
    measure(
        name, frame, catalogue, [&] { form.Show(); }, [&] { form.Unload(); });
}

void pages(Catalogue& catalogue) {
    ItemList& item = catalogue.item;
    catalogue.act([&] { item.Show(); });
    ReportList& list = *item.ui().ListView1;
    const char* const columns[] = {"", "code", "name", "category", "material", "quantity", "unit"};
    for (int column = 1; column <= 6; ++column) {
        const std::string by = std::string("items by ") + columns[column];
        measure(by + ", sorted", frame, catalogue, [&] { emit list.ColumnClick(column); });
        const struct {
            const char* name;
            long page;
        } places[] = {{", middle", item.list().PageCount / 2}, {", last", item.list().PageCount}};
        for (const auto& place : places) {
            item.list().Page = static_cast<std::int16_t>(place.page);
            measure(by + place.name, furtherPage, catalogue, [&] { item.RefreshGrid(); });
        }
        item.list().Page = 1;
    }
    // All rows in between: the same search again would find its page kept.
    for (const char* text : {"Item 1", "Category 3", "nothing like it"})
        measure(
            std::string("search for \"") + text + "\"", frame, catalogue,
            [&] {
                item.ui().txtName->setText(text);
                item.ui().cmdSearch->click();
            },
            [&] { item.ui().CmdAll->click(); });
    catalogue.act([&] { item.Unload(); });
}

}  // namespace

void masters(Sample& sample) {
    // The screenless platform complains at each window that it cannot raise.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& message) {
        if (!message.startsWith("This plugin does not support")) std::fprintf(stderr, "%s\n", qPrintable(message));
    });
    Catalogue catalogue(sample);
    catalogue.item.Which = catalogue.category.Which = "E";
    opening("item list opened", catalogue, catalogue.item);
    opening("category list opened", catalogue, catalogue.category);
    ItemMast& form = catalogue.item.entryForm();
    measure(
        "item form opened", frame, catalogue,
        [&] {
            form.Item().itemid = static_cast<std::int16_t>(Sample::most);
            form.Show();
        },
        [&] { form.Unload(); });
    pages(catalogue);
}

}  // namespace torvane::bench

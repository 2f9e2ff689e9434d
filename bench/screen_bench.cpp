#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QTreeWidget>
#include <stdexcept>
#include <string>
#include <vector>

#include "benches.h"
#include "datastore/statement.h"
#include "estimates/screens/frm_order.h"
#include "harness.h"
#include "sample.h"
#include "screens/program.h"
#include "ui_frm_order.h"

// The estimate screen with its real window, against the rows through SQLite alone and Qt's own widgets.

namespace torvane::bench {

namespace {

constexpr int addedLines = 16;
constexpr double frame = 1000.0 / 60;
constexpr int columns = 12;

// The estimate screen of a program of its own over one folder.
class Screen {
public:
    Screen(Host& host, Store& store) : program_({host, store}, leaveProcess) {}

    // Puts lines into the record, as loading the estimate would; gone with the window.
    void setLines(int count) {
        order.AddOrDelete = "E";
        order.Order().OrderNo = Sample::largeOrder;
        order.Order().CustId = 9;
        for (int line = 0; line < count; ++line)
            order.Order().ColnOrderItems().Add(
                std::int64_t{Sample::itemOfLine(line)}, line % 9 + 1.0, line % 977 + 0.25, std::int64_t{line % 30 + 1},
                std::int64_t{line % 30 + 1}, line % 7 + 0.5, line % 90 + 0.75, line % 8 * 1.0);
    }

    void act(const std::function<void()>& handler) { program_.guarded(handler); }

    // The time of loading the window, in milliseconds; unloaded again outside of it.
    double load() {
        auto loading = [this] { act([this] { order.Load(); }); };
        const double time = timed(loading);
        act([this] { order.Unload(); });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return time;
    }

private:
    Program program_;

public:
    frmOrder order{program_, {.closeNumberPrompt = [] {}}};
};

class PaintCounter : public QObject {
public:
    explicit PaintCounter(QWidget& widget) { widget.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return false;
    }
    int paints = 0;
};

template <class T>
T& find(Form& form, const char* name) {
    auto* found = form.window().findChild<T*>(QLatin1String(name));
    if (found == nullptr) throw std::runtime_error(std::string("no ") + name);
    return *found;
}

const std::string wholeCatalogue =
    "Select ItemId,ItemName,Material,Labor,Qty,SubLabor,Equipment from Item order by ItemName";

// A price changes, so that the catalogue is read anew.
void writeAnItem(Sample& sample) {
    Connection(sample.access).execute("Update Item Set Labor = 1 where ItemId = 1");
}

// What filling the list of lines costs: the load of an estimate with lines less that of one without.
void fillData(Sample& sample, Screen& screen) {
    QList<QStringList> texts;
    for (int line = 0; line < Sample::largeOrderLines; ++line) {
        QStringList row;
        for (int column = 0; column < columns; ++column) row.append(QString::number(line * 12.25 + column));
        texts.append(row);
    }
    compare(
        "list of 1,000 lines filled (FillData)", {.ratio = 2},
        [&] {
            screen.setLines(0);
            const double without = screen.load();
            screen.setLines(Sample::largeOrderLines);
            return screen.load() - without;
        },
        [&] {
            for (int line = 0; line < Sample::largeOrderLines; ++line) {
                const int item = Sample::itemOfLine(line);
                sample.raw.read(joined("Select * from Item where ItemId= ", item));
                sample.raw.read(joined("Select * from Category where CatId= ", Sample::categoryOfItem(item)));
            }
            QTreeWidget list;
            list.setColumnCount(columns);
            QList<QTreeWidgetItem*> items;
            for (const QStringList& row : texts) items.append(new QTreeWidgetItem(row));
            list.addTopLevelItems(items);
        });
}

// As the user waits for it, until all is painted.
void openLargest(Sample& sample, Screen& screen) {
    const auto opened = [&screen] {
        screen.setLines(Sample::largeOrderLines);
        auto open = [&screen] {
            screen.act([&screen] { screen.order.Show(); });
            QApplication::processEvents();
        };
        const double time = timed(open);
        screen.act([&screen] { screen.order.Unload(); });
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return time;
    };
    opened();
    std::vector<double> again;
    std::vector<double> afterWrite;
    std::vector<double> read;
    for (int i = 0; i < addedLines; ++i) {
        again.push_back(opened());
        writeAnItem(sample);
        auto reading = [&sample] { sample.raw.read(wholeCatalogue); };
        read.push_back(timed(reading));
        afterWrite.push_back(opened());
    }
    print("estimate of 1,000 lines opened, painted", {.least = frame}, median(again), 0);
    print("the same after a write", {.least = frame}, median(afterWrite), median(read));
}

// The load with the whole catalogue less the load with an empty one.
void fillItems(Sample& sample, Screen& full) {
    QuietHost host(sample.emptyCatalogue());
    Store store;
    Screen empty(host, store);
    empty.order.AddOrDelete = full.order.AddOrDelete = "A";
    QStringList names;
    for (int item = 1; item <= Sample::most; ++item) names.append(QStringLiteral("Item %1").arg(item));
    compare(
        "drop-down list of 32,767 items filled (FillItems)", {.ratio = 3},
        [&] {
            writeAnItem(sample);
            const double without = empty.load();
            return full.load() - without;
        },
        [&] {
            sample.raw.read(wholeCatalogue);
            QComboBox list;
            list.addItems(names);
        });
}

void addLine(Screen& screen) {
    screen.setLines(Sample::largeOrderLines);
    screen.act([&] { screen.order.Show(); });
    QApplication::processEvents();
    auto& items = find<DropList>(screen.order, "cmbItems");
    auto& quantity = find<TextBox>(screen.order, "TxtQty");
    auto& list = find<ReportList>(screen.order, "ListView1");
    // All lines have their room's number as their unit's: none of them has this room with that unit.
    screen.act([&] {
        find<DropList>(screen.order, "cmbRooms").select(0);
        find<DropList>(screen.order, "cmbUnits").select(1);
    });
    const PaintCounter counter(*list.viewport());
    std::vector<double> times;
    for (int i = 0; i < addedLines; ++i) {
        screen.act([&] {
            items.select(i * (Sample::most / addedLines));
            quantity.setText("3");
        });
        list.scrollToBottom();
        QApplication::processEvents();
        auto adding = [&] {
            screen.act([&] { screen.order.cmdAdd_Click(); });
            list.scrollToBottom();
            QApplication::processEvents();
        };
        const int before = counter.paints;
        times.push_back(timed(adding));
        if (counter.paints == before) throw std::runtime_error("the new line was not painted");
    }
    if (list.RowCount() != Sample::largeOrderLines + addedLines)
        throw std::runtime_error("there are " + std::to_string(list.RowCount()) + " lines");
    print("a line added to 1,000, painted", {.least = 16}, median(times), 0);
    screen.act([&] { screen.order.Unload(); });
}

}  // namespace

void screens(Sample& sample) {
    Screen screen(sample.host, sample.store);
    fillData(sample, screen);
    fillItems(sample, screen);
    openLargest(sample, screen);
    addLine(screen);
}

}  // namespace torvane::bench

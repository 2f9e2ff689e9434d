#include "shell/frm_main_menu.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>

#include "screens/assistant.h"
#include "shell/menu_tree.h"
#include "shell/title.h"
#include "widgets/mnemonics.h"
#include "widgets/picture_button.h"
#include "widgets/pictures.h"
#include "widgets/texts.h"
#include "widgets/units.h"

namespace torvane {

namespace {

constexpr std::string_view workingMenus[] = {"mnuFile",   "mnuInventory", "mnuEstimates",
                                             "mnuReport", "mnuBlank",     "mnuCalc"};

struct ButtonPlace {
    std::string_view name;
    std::string_view word;
    std::string_view picture;
    int top;                 // twips in Frame2
    std::string_view entry;  // the menu that pops up beside it, or the entry that it runs
};
constexpr ButtonPlace buttons[] = {
    {"cmd_Files", "Files", "files", 0, "mnuFile"},
    {"cmd_Masters", "Masters", "masters", 360, "mnuInventory"},
    {"cmd_Estimates", "Estimates", "estimates", 720, "mnuEstimates"},
    {"cmd_Calculators", "Calculators", "calculators", 1080, "mnuCalc"},
    {"cmd_Reports", "Reports", "reports", 1440, "mnuReport"},
    {"cmd_Blank", "Notes", "notes", 1800, "mnuBlank"},
    {"cmd_Exit", "Exit", "exit", 2160, "mnuExit"},
};

// A rectangle in twips of the client area under the menu bar.
struct Twips {
    int left, top, width, height;
};
struct Artwork {
    const char* name;
    const char* says;
    Twips place;
};
constexpr Artwork artworks[] = {
    {"Image1", "A building site", {1800, 840, 5400, 4335}},
    {"Image2", "An estimate sheet", {7380, 840, 2895, 4335}},
};
constexpr Twips titlePlace{285, 120, 9990, 555};
constexpr Twips frame2Place{0, 2640, 1575, 2535};
constexpr Twips clientSize{0, 0, 10560, 5415};
constexpr int drawingsComeAfterMs = 30;
constexpr int buttonWidth = 1575;
constexpr int buttonHeight = 375;

QRect scaled(const Twips& place, double scale) {
    return {pixels(place.left * scale), pixels(place.top * scale), pixels(place.width * scale),
            pixels(place.height * scale)};
}

// The largest at which the window, with its frame and menus, is wholly on the screen.
double scaleOfTheScreen(const QWidget& window) {
    const QSize room = window.screen()->availableGeometry().size();
    const int frameAndMenus = 3 * window.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const QSizeF usual = scaled(clientSize, 1).size();
    const double fits = std::min(room.width() / (usual.width() + frameAndMenus / 3.0),
                                 (room.height() - frameAndMenus) / usual.height());
    return std::max(1.0, fits);
}

void addArtwork(QWidget& area, const Artwork& artwork, double scale) {
    auto* image = new QLabel(&area);
    image->setObjectName(QLatin1String(artwork.name));
    image->setAccessibleName(QLatin1String(artwork.says));
    image->setGeometry(scaled(artwork.place, scale));
    image->setAlignment(Qt::AlignCenter);
    // Drawn when the window stands with its menus, which can be used meanwhile.
    QTimer::singleShot(drawingsComeAfterMs, image, [image] {
        image->setPixmap(picture(image->objectName().toLower()).pixmap(image->size(), image->devicePixelRatioF()));
    });
}

}  // namespace

frmMainMenu::frmMainMenu(Program& program, std::vector<MenuAction> actions, bool previousInstance,
                         std::function<std::unique_ptr<Assistant>(const std::string&)> loadAssistant)
    : Form(program, "frmMainMenu"),
      actions_(std::move(actions)),
      previousInstance_(previousInstance),
      loadAssistant_(std::move(loadAssistant)) {
    setHelpContext(1);
}

frmMainMenu::~frmMainMenu() {
    program().setMerlin(nullptr);
}

// --- The window ------------------------------------------------------------------------------------------------------

void frmMainMenu::build(QWidget& window) {
    window.setWindowTitle(QStringLiteral("Main Menu"));
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* bar = new QMenuBar(&window);
    layout->setMenuBar(bar);
    auto* area = new QWidget(&window);
    const double scale = std::min(fontScale(window), scaleOfTheScreen(window));
    // What stands in it keeps together in the middle of a larger window.
    area->setFixedSize(scaled(clientSize, scale).size());
    layout->addWidget(area, 0, Qt::AlignCenter);

    QFont fits = area->font();
    fits.setPointSizeF(fits.pointSizeF() * scale / fontScale(window));
    area->setFont(fits);

    auto* caption = new QLabel(QLatin1String(title), area);
    caption->setObjectName(QStringLiteral("Label1"));
    caption->setGeometry(scaled(titlePlace, scale));
    caption->setAlignment(Qt::AlignCenter);
    QFont large = caption->font();
    large.setPointSizeF(large.pointSizeF() * 1.9);
    large.setBold(true);
    caption->setFont(large);
    for (const Artwork& each : artworks) addArtwork(*area, each, scale);

    buildMenus(*bar);
    buildButtons(*area, scale);
    program().placing().setMainWindow(&window);
}

void frmMainMenu::buildMenus(QMenuBar& bar) {
    const auto isMenu = [](std::string_view name) {
        return std::ranges::any_of(menuTree(), [&](const MenuEntry& entry) { return entry.parent == name; });
    };
    for (const MenuEntry& entry : menuTree()) {
        const QAction* parent = entries_.value(qstring(entry.parent));
        QAction* action = (parent ? static_cast<QWidget*>(parent->menu()) : &bar)->addAction(qstring(entry.caption));
        action->setObjectName(qstring(entry.name));
        action->setSeparator(entry.caption.empty());
        if (isMenu(entry.name)) {
            action->setMenu(new QMenu(&bar));
            action->menu()->setObjectName(action->objectName());
        }
        entries_.insert(action->objectName(), action);
    }
    entries_.value(QStringLiteral("mnuNewEstimate"))->setShortcut(QKeySequence::New);
    giveMnemonics(bar.actions());
    for (const QAction* entry : std::as_const(entries_))
        if (entry->menu()) giveMnemonics(entry->menu()->actions());
}

void frmMainMenu::buildButtons(QWidget& area, double scale) {
    Frame2_ = new QWidget(&area);
    Frame2_->setObjectName(QStringLiteral("Frame2"));
    Frame2_->setGeometry(scaled(frame2Place, scale));
    for (const ButtonPlace& place : buttons) {
        auto* button = new PictureButton(Frame2_);
        button->setObjectName(qstring(place.name));
        button->setAccessibleName(qstring(place.word));
        button->setPicture(qstring(place.picture));
        button->setLeftAligned(true);
        button->setGeometry(scaled({0, place.top, buttonWidth, buttonHeight}, scale));
        QAction* entry = entries_.value(qstring(place.entry));
        on(*this, button, &QAbstractButton::clicked, [button, entry] {
            if (entry->menu())
                entry->menu()->popup(button->mapToGlobal(QPoint(button->width(), 0)));
            else
                entry->trigger();
        });
    }
}

void frmMainMenu::dropControls() {
    entries_.clear();
    Frame2_ = nullptr;
}

void frmMainMenu::setWorkingMenusVisible(bool visible) {
    for (const std::string_view menu : workingMenus) entries_.value(qstring(menu))->setVisible(visible);
    Frame2_->setVisible(visible);
}

// --- Start -----------------------------------------------------------------------------------------------------------

void frmMainMenu::Form_Load() {
    for (const MenuAction& action : actions_)
        on(*this, entries_.value(qstring(action.entry)), &QAction::triggered, action.act);
    setWorkingMenusVisible(false);
    if (previousInstance_) {
        // The assistant is not there yet, so this is where a second copy ends.
        const Program::Doing doing(
            program(), "starting a second time on this folder (it is already running: look for its window)");
        program().Merlin().Play("Sad");
        program().Merlin().Speak("Previous Instance of this Application is already running");
        Unload();
        return;
    }
    const Program::Doing doing(program(), "starting");
    connection_ = std::make_unique<Connection>(program().dataAccess());
    ActivateMerlin();
    Assistant& merlin = program().Merlin();
    merlin.MoveTo(100, 100);
    merlin.Play("Wave");
    merlin.Speak("Hello");
    merlin.Play("Greet");
    merlin.Speak("Welcome to Torvane Construction Estimator");
    setWorkingMenusVisible(true);
    merlin.Hide();
}

void frmMainMenu::ActivateMerlin() {
    program().setMerlin(loadAssistant_(program().host().programDirectory() + "/Merlin.ACS"));
    program().Merlin().Show();
}

void frmMainMenu::Form_Unload() {
    program().setMerlin(nullptr);
}

}  // namespace torvane

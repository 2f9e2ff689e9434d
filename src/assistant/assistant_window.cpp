#include "assistant/assistant_window.h"

#include <QAccessible>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QScreen>
#include <QSvgRenderer>
#include <QWindow>

#include "assistant/balloon.h"

namespace torvane {

AssistantWindow::AssistantWindow(const QSize& size, bool ofItsOwn)
    // A tool tip's window is the one kind that no other desktop gives the focus to.
    : QWidget(nullptr,
              ofItsOwn ? Qt::ToolTip | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint | Qt::WindowDoesNotAcceptFocus
                       : Qt::WindowFlags()),
      ofItsOwn_(ofItsOwn) {
    setObjectName("Assistant");
    setWindowTitle("Assistant");
    setAccessibleName("Assistant");
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_ShowWithoutActivating);
    setFocusPolicy(Qt::NoFocus);
    resize(size);
    move(100, 100);
    connect(qApp, &QGuiApplication::focusWindowChanged, this,
            ofItsOwn ? &AssistantWindow::comeToFront : &AssistantWindow::takePlace);
}

AssistantWindow::~AssistantWindow() {
    delete balloon_;
}

void AssistantWindow::enter() {
    entered_ = true;
    moveTo(x(), y());
    qApp->installEventFilter(this);
    takePlace();
}

void AssistantWindow::leave() {
    entered_ = false;
    takePlace();
    qApp->removeEventFilter(this);
    pictures_.clear();
}

void AssistantWindow::moveTo(int x, int y) {
    move(whollyOn(roomAt(QPoint(x, y)), QRect(QPoint(x, y), size())).topLeft());
    if (speaking_) placeBalloon();
}

QRect AssistantWindow::roomAt(const QPoint& place) const {
    if (parentWidget()) return parentWidget()->rect();
    const QScreen* screen = QGuiApplication::screenAt(place);
    return (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
}

void AssistantWindow::showDrawing(const QByteArray& drawing) {
    drawing_ = drawing;
    const QRegion& mask = picture(drawing).mask;
    // A window can't have an empty mask: a character that is out of sight keeps one dot. As a part of a window it has
    // none: the controls below would not be painted where a mask has left them.
    if (ofItsOwn_) setMask(mask.isEmpty() ? QRegion(0, height() - 1, 1, 1) : mask);
    update();
}

void AssistantWindow::showText(const std::string& text) {
    if (!balloon_) {
        balloon_ = new Balloon(this);
        connect(balloon_, &Balloon::clicked, this, &AssistantWindow::dismissed);
        connect(balloon_, &Balloon::menuAsked, this, &AssistantWindow::showMenu);
    }
    balloon_->setText(QString::fromStdString(text));
    speaking_ = true;
    takePlace();
    QAccessibleEvent spoken(balloon_->findChild<QWidget*>("Balloon"), QAccessible::Alert);
    QAccessible::updateAccessibility(&spoken);
}

void AssistantWindow::hideText() {
    speaking_ = false;
    takePlace();
}

bool AssistantWindow::textShown() const {
    return speaking_ && isVisible();
}

void AssistantWindow::placeBalloon() {
    balloon_->placeAt(geometry(), roomAt(geometry().center()));
}

const AssistantWindow::Picture& AssistantWindow::picture(const QByteArray& drawing) {
    if (drawnAt_ != devicePixelRatioF()) {
        drawnAt_ = devicePixelRatioF();
        pictures_.clear();
    }
    const auto known = pictures_.constFind(drawing);
    if (known != pictures_.constEnd()) return *known;
    QImage drawn((QSizeF(size()) * drawnAt_).toSize(), QImage::Format_ARGB32_Premultiplied);
    drawn.setDevicePixelRatio(drawnAt_);
    drawn.fill(Qt::transparent);
    QSvgRenderer renderer(drawing);
    QPainter painter(&drawn);
    renderer.render(&painter, QRectF(QPointF(), QSizeF(size())));
    painter.end();
    return *pictures_.insert(drawing, Picture{QPixmap::fromImage(drawn), seenRegion(drawn)});
}

bool AssistantWindow::eventFilter(QObject* watched, QEvent* event) {
    const auto* widget = qobject_cast<const QWidget*>(watched);
    switch (event->type()) {
        case QEvent::Resize:
            if (widget && widget == parentWidget()) moveTo(x(), y());
            break;
        case QEvent::Show:
        case QEvent::Hide:
            if (!widget || !(ofItsOwn_ ? widget->isModal() : widget->isWindow())) break;
            // A window that goes for good takes its parts with it.
            if (event->type() == QEvent::Hide && widget == parentWidget()) standIn(nullptr);
            // It counts as modal only when it has been shown, and no longer when it has gone.
            QMetaObject::invokeMethod(this, &AssistantWindow::takePlace, Qt::QueuedConnection);
            break;
        case QEvent::ShortcutOverride:
        case QEvent::KeyPress: {
            const auto* key = static_cast<QKeyEvent*>(event);
            // A menu's Escape closes the menu. One that is held down does not go on to the window after the text.
            if (key->key() != Qt::Key_Escape || !isVisible() || QApplication::activePopupWidget()) break;
            if (!key->isAutoRepeat() && !textShown()) break;
            event->accept();
            if (event->type() == QEvent::KeyPress && !key->isAutoRepeat()) emit dismissed();
            return true;
        }
        default:
            break;
    }
    return QWidget::eventFilter(watched, event);
}

void AssistantWindow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture(drawing_).pixmap);
}

void AssistantWindow::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->globalPosition().toPoint() - pos();
    dragged_ = false;
}

void AssistantWindow::mouseMoveEvent(QMouseEvent* event) {
    if (!(event->buttons() & Qt::LeftButton)) return;
    const QPoint to = event->globalPosition().toPoint() - pressed_;
    if (!dragged_ && (to - pos()).manhattanLength() < QApplication::startDragDistance()) return;
    dragged_ = true;
    moveTo(to.x(), to.y());
}

void AssistantWindow::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && !dragged_) emit dismissed();
}

void AssistantWindow::contextMenuEvent(QContextMenuEvent* event) {
    showMenu(event->globalPos());
}

void AssistantWindow::showMenu(const QPoint& globalPosition) {
    auto* menu = new QMenu(this);
    menu->setObjectName("AssistantMenu");
    menu->setAttribute(Qt::WA_DeleteOnClose);
    connect(menu->addAction("Hide"), &QAction::triggered, this, &AssistantWindow::sentAway);
    menu->popup(globalPosition);
}

void AssistantWindow::takePlace() {
    const bool inSight = entered_ && !qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!ofItsOwn_ && inSight) standIn(windowToStandIn());
    if (!entered_) standIn(nullptr);
    if (speaking_) placeBalloon();
    const bool shown = inSight && (ofItsOwn_ || parentWidget());
    setVisible(shown);
    if (balloon_) balloon_->setVisible(shown && speaking_);
    if (!shown) return;
    if (ofItsOwn_) standOverModal();
    comeToFront();
}

// A text goes to the window in front, as long as the keys are not in another program. Without one the character stays
// where it is: it would lie over the boxes of each window that opens.
QWidget* AssistantWindow::windowToStandIn() const {
    const bool comes = speaking_ && (QApplication::activeModalWidget() || QApplication::activeWindow());
    return parentWidget() && !comes ? parentWidget() : frontWindow();
}

void AssistantWindow::standIn(QWidget* front) {
    if (front != parentWidget()) {
        const QPoint place = pos();
        setParent(front);
        move(place);
        if (front) moveTo(place.x(), place.y());
    }
    QWidget* const home = front ? front : this;
    if (balloon_ && balloon_->parentWidget() != home) balloon_->setParent(home);
}

// A window that stands over the modal one is not blocked by it; with no modal window it stands over none, so that it
// does not go with it.
void AssistantWindow::standOverModal() {
    QWindow* const handle = windowHandle();
    QWindow* const modal = QGuiApplication::modalWindow();
    if (!handle || handle->transientParent() == modal) return;
    handle->setTransientParent(modal);
}

void AssistantWindow::comeToFront() {
    if (!isVisible() || QApplication::activePopupWidget()) return;
    raise();
    if (textShown()) balloon_->raise();
}

}  // namespace torvane

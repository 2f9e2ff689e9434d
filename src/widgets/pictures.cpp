#include "widgets/pictures.h"

#include <QApplication>
#include <QFile>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QSvgRenderer>
#include <map>
#include <memory>
#include <tuple>
#include <utility>

// The linker would drop the resource of a static library unless somebody asks for it, and the macro must stand outside
// every namespace.
static bool registerDrawings() {
    Q_INIT_RESOURCE(art);
    return true;
}

namespace torvane {

namespace {

// Draws from the file, as sharp as each place wants it. Qt's own engine for such files is a plugin, and looking for it
// and reading each file twice is felt when the first window comes.
class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(QString file) : file_(std::move(file)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const qreal ratio = painter->device()->devicePixelRatioF();
        const QPixmap drawn = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        QRectF place(QPointF(), QSizeF(drawn.size()) / ratio);
        place.moveCenter(QRectF(rect).center());
        painter->drawPixmap(place, drawn, QRectF(drawn.rect()));
    }

    // The largest of the drawing's own shape that fits in.
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const auto key = std::make_tuple(size.width(), size.height(), mode);
        if (const auto known = drawn_.find(key); known != drawn_.end()) return known->second;
        if (!renderer_) renderer_ = std::make_shared<QSvgRenderer>(file_);
        QPixmap drawn(renderer_->defaultSize().scaled(size, Qt::KeepAspectRatio));
        if (drawn.isNull()) return {};
        drawn.fill(Qt::transparent);
        QPainter painter(&drawn);
        renderer_->render(&painter, QRectF(drawn.rect()));
        painter.end();
        if (mode != QIcon::Normal) {
            QStyleOption option;
            option.palette = QGuiApplication::palette();
            drawn = QApplication::style()->generatedIconPixmap(mode, drawn, &option);
        }
        return drawn_.emplace(key, drawn).first->second;
    }

    QIconEngine* clone() const override { return new PictureEngine(*this); }

private:
    QString file_;
    std::shared_ptr<QSvgRenderer> renderer_;
    std::map<std::tuple<int, int, QIcon::Mode>, QPixmap> drawn_;
};

}  // namespace

QIcon picture(const QString& name) {
    [[maybe_unused]] static const bool once = registerDrawings();
    const QString file = QStringLiteral(":/art/%1.svg").arg(name);
    return QFile::exists(file) ? QIcon(new PictureEngine(file)) : QIcon();
}

}  // namespace torvane

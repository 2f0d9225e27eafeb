// SVG icons.
#include "platform/qt/svg_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <utility>

namespace qor {
namespace {

constexpr const char* kTextColor = "currentColor";
constexpr const char* kAccent = "#3b82c4";

class SvgIconEngine : public QIconEngine {
 public:
  explicit SvgIconEngine(QString file) : file_(std::move(file)) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
    const QColor color = textColor(mode);
    const QString key =
        QString("%1 %2 %3 %4").arg(file_).arg(size.width()).arg(size.height()).arg(color.rgba());
    QPixmap result;
    if (!QPixmapCache::find(key, &result)) {
      result = drawn(size, color, mode == QIcon::Disabled);
      QPixmapCache::insert(key, result);
    }
    return result;
  }

  QIconEngine* clone() const override { return new SvgIconEngine(*this); }

 private:
  static QColor textColor(QIcon::Mode mode) {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    return QGuiApplication::palette().color(group, QPalette::ButtonText);
  }

  QPixmap drawn(const QSize& size, const QColor& color, bool disabled) const {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QFile file(file_);
    if (!file.open(QIODevice::ReadOnly)) return result;
    QByteArray source = file.readAll();
    source.replace(kTextColor, color.name().toLatin1());
    if (disabled) source.replace(kAccent, color.name().toLatin1());
    QPainter painter(&result);
    QSvgRenderer(source).render(&painter);
    return result;
  }

  QString file_;
};

}  // namespace

QIcon svgIcon(const QString& file) {
  return QIcon(new SvgIconEngine(file));
}

}  // namespace qor

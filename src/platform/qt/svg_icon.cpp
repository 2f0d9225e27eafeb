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
  SvgIconEngine(QString file, IconPlace place) : file_(std::move(file)), place_(place) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device()->devicePixelRatioF();
    painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }

  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal) override {
    const bool onBar = place_ == IconPlace::menu && mode == QIcon::Active;
    const bool oneColor = onBar || mode == QIcon::Disabled;
    const QColor color = textColor(mode, onBar);
    const QString key = QString("%1 %2 %3 %4 %5")
                            .arg(file_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(color.rgba())
                            .arg(oneColor);
    QPixmap result;
    if (!QPixmapCache::find(key, &result)) {
      result = drawn(size, color, oneColor);
      QPixmapCache::insert(key, result);
    }
    return result;
  }

  QIconEngine* clone() const override { return new SvgIconEngine(*this); }

 private:
  static QColor textColor(QIcon::Mode mode, bool onBar) {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    return QGuiApplication::palette().color(
        group, onBar ? QPalette::HighlightedText : QPalette::ButtonText);
  }

  QPixmap drawn(const QSize& size, const QColor& color, bool oneColor) const {
    QPixmap result(size);
    result.fill(Qt::transparent);
    QFile file(file_);
    if (!file.open(QIODevice::ReadOnly)) return result;
    QByteArray source = file.readAll();
    source.replace(kTextColor, color.name().toLatin1());
    if (oneColor) source.replace(kAccent, color.name().toLatin1());
    QPainter painter(&result);
    QSvgRenderer(source).render(&painter);
    return result;
  }

  QString file_;
  IconPlace place_;
};

}  // namespace

QIcon svgIcon(const QString& file, IconPlace place) {
  return QIcon(new SvgIconEngine(file, place));
}

}  // namespace qor

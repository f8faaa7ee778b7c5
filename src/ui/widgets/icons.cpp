#include "ui/widgets/icons.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <initializer_list>

// Outside any namespace, as Qt asks for resources in a static library.
static void loadIconResources() {
    Q_INIT_RESOURCE(icons);
}

namespace kelvo {
namespace {

/// As large as the toolkit asks an icon without sizes; whoever wants it larger has the drawing.
constexpr auto cApplicationSizes = {16, 22, 24, 32, 48, 64, 128};
constexpr auto cTraySizes = {16, 22, 24, 32, 48};
constexpr qreal cRimOpacity = 0.85;

QString resource(const QString& name) {
    loadIconResources();
    return QStringLiteral(":/kelvo-mirror/icons/") + name + QStringLiteral(".svg");
}

QString statusName(StatusMenuState state) {
    switch (state) {
    case StatusMenuState::Off:
        return QStringLiteral("kelvo-mirror-off-symbolic");
    case StatusMenuState::Resting:
        return QStringLiteral("kelvo-mirror-resting-symbolic");
    case StatusMenuState::Running:
        return QStringLiteral("kelvo-mirror-running-symbolic");
    case StatusMenuState::Trouble:
        return QStringLiteral("kelvo-mirror-trouble-symbolic");
    }
    return {};
}

QImage drawn(QSvgRenderer& renderer, int side) {
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

QImage recoloured(QImage shape, const QColor& color) {
    QPainter painter(&shape);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(shape.rect(), color);
    return shape;
}

QImage withRim(const QImage& shape, const QColor& ink, const QColor& ground) {
    QImage image(shape.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const QImage rim = recoloured(shape, ground);
    QPainter painter(&image);
    for (const QPoint step : {QPoint(-1, 0), QPoint(1, 0), QPoint(0, -1), QPoint(0, 1)})
        painter.drawImage(step, rim);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(image.rect(), QColor::fromRgbF(0, 0, 0, cRimOpacity));
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.drawImage(0, 0, recoloured(shape, ink));
    return image;
}

} // namespace

QIcon applicationIcon() {
    QSvgRenderer renderer(resource(QStringLiteral("kelvo-mirror")));
    QIcon icon;
    for (const int side : cApplicationSizes)
        icon.addPixmap(QPixmap::fromImage(drawn(renderer, side)));
    return icon;
}

QIcon statusIcon(StatusMenuState state, const QColor& ink, const QColor& ground) {
    QSvgRenderer renderer(resource(statusName(state)));
    QIcon icon;
    for (const int side : cTraySizes)
        icon.addPixmap(QPixmap::fromImage(withRim(drawn(renderer, side), ink, ground)));
    return icon;
}

QIcon startIcon(bool stops, const QPalette& palette) {
    constexpr int cSide = 32;
    constexpr qreal cMargin = 6;
    QIcon icon;
    for (const auto& [mode, group] : {std::pair(QIcon::Normal, QPalette::Active),
                                      std::pair(QIcon::Disabled, QPalette::Disabled)}) {
        QPixmap picture(cSide, cSide);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(palette.color(group, QPalette::ButtonText));
        constexpr qreal cFar = cSide - cMargin;
        if (stops)
            painter.drawRect(QRectF(QPointF(cMargin, cMargin), QPointF(cFar, cFar)));
        else
            painter.drawPolygon(QPolygonF(
                {QPointF(cMargin, cMargin), QPointF(cFar, cSide / 2.0), QPointF(cMargin, cFar)}));
        icon.addPixmap(picture, mode);
    }
    return icon;
}

QIcon moreIcon(bool rightToLeft) {
    constexpr int cSide = 16;
    const QColor seenOnLightAndDark(0x80, 0x80, 0x80);
    QPixmap picture(cSide, cSide);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(seenOnLightAndDark, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (rightToLeft) {
        painter.translate(cSide, 0);
        painter.scale(-1, 1);
    }
    for (const qreal x : {3.5, 8.5})
        painter.drawPolyline(QPolygonF({QPointF(x, 4), QPointF(x + 4, 8), QPointF(x, 12)}));
    painter.end();
    return QIcon(picture);
}

QPixmap healthSign(HealthSign sign, const QColor& ink, int side, qreal ratio) {
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / 16.0, side / 16.0); // drawn on a field of 16 by 16
    painter.setPen(QPen(ink, 2.5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    switch (sign) {
    case HealthSign::Well:
        painter.drawPolyline(QPolygonF({QPointF(2.5, 8.5), QPointF(6.5, 12.5), QPointF(13.5, 4)}));
        break;
    case HealthSign::Trouble:
        painter.drawLine(QPointF(3.5, 3.5), QPointF(12.5, 12.5));
        painter.drawLine(QPointF(12.5, 3.5), QPointF(3.5, 12.5));
        break;
    case HealthSign::Unknown:
        painter.setBrush(ink);
        painter.drawEllipse(QPointF(8, 8), 1.5, 1.5);
        break;
    }
    return picture;
}

} // namespace kelvo

// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

/// Resources of a static library are not there by themselves; at global scope, as the macro wants.
static void initialiseIcons()
{
    Q_INIT_RESOURCE(command_icons);
}

namespace corvala::app {

/// The strokes of our drawings, which take the colour of texts.
static constexpr char kStroke[] = "#404040";
static constexpr double kDisabledOpacity = 0.35;

static QString drawingFile(const char* name)
{
    static const bool isReady = (initialiseIcons(), true);
    Q_UNUSED(isReady)
    return QStringLiteral(":/corvala/icons/%1.svg").arg(QLatin1String(name));
}

static QPixmap drawn(QSvgRenderer& drawing, const QSize& size, double opacity = 1.0)
{
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setOpacity(opacity);
    drawing.render(&painter);
    return pixmap;
}

static QColor strokeColor(QIcon::Mode mode)
{
    return QGuiApplication::palette().color(mode == QIcon::Selected ? QPalette::HighlightedText
                                                                    : QPalette::WindowText);
}

namespace {

/// Draws one of our drawings in the colours of the palette, sharp at any size.
class PaletteIconEngine : public QIconEngine
{
public:
    explicit PaletteIconEngine(const QString& file)
        : m_file(file)
    {
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override
    {
        const QString stroke = strokeColor(mode).name();
        const QString key = QStringLiteral("%1 %2 %3 %4x%5")
                                .arg(m_file, stroke, mode == QIcon::Disabled ? "-" : "+")
                                .arg(size.width())
                                .arg(size.height());
        QPixmap pixmap;
        if (QPixmapCache::find(key, &pixmap))
            return pixmap;
        pixmap = fresh(size, stroke, mode);
        QPixmapCache::insert(key, pixmap);
        return pixmap;
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal scale = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, pixmap(rect.size() * scale, mode, state));
    }

    QIconEngine* clone() const override { return new PaletteIconEngine(*this); }

private:
    QPixmap fresh(const QSize& size, const QString& stroke, QIcon::Mode mode) const
    {
        QFile file(m_file);
        if (!file.open(QIODevice::ReadOnly))
            return {};
        QSvgRenderer drawing(file.readAll().replace(kStroke, stroke.toLatin1()));
        return drawn(drawing, size, mode == QIcon::Disabled ? kDisabledOpacity : 1.0);
    }

    QString m_file;
};

} // namespace

QIcon commandIcon(const char* name)
{
    const QString drawing = drawingFile(name);
    return QIcon::fromTheme(QLatin1String(name), QIcon(new PaletteIconEngine(drawing)));
}

QIcon programIcon()
{
    static constexpr int kSizes[] = {16, 22, 24, 32, 48, 64, 128, 256};
    static constexpr int kLargestSmall = 24; ///< in which the finer drawing is a blur
    QSvgRenderer small(drawingFile("corvala-small"));
    QSvgRenderer large(drawingFile("corvala"));
    QIcon icon;
    for (const int size : kSizes)
        icon.addPixmap(drawn(size <= kLargestSmall ? small : large, {size, size}));
    return icon;
}

} // namespace corvala::app

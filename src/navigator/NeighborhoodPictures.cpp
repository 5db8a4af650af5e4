#include "navigator/NeighborhoodPictures.h"

#include <QGuiApplication>
#include <QHash>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <iterator>

// The drawings are resources of a static library, which are not registered
// on their own; this must stay outside any namespace.
static void registerPictures()
{
    static const bool registered = [] {
        Q_INIT_RESOURCE(pictures);
        return true;
    }();
    Q_UNUSED(registered);
}

namespace {

// Background gradient, top to bottom, and the drawing on it: an SVG of 64 by
// 64 units in the resources' pictures folder, which may run off the edges.
struct Look
{
    QRgb top;
    QRgb bottom;
    const char* motif;
};

// In entry order: the general picture, then the built-in Neighborhoods.
const Look UsaLooks[] = {
    {0x7fb8d8, 0x3f7fa6, "house"},           // added by the user
    {0x2f2c70, 0x110e30, "planet"},          // Area51
    {0x4a90c8, 0x1f5a8c, "temple"},          // Athens
    {0x9ad6f2, 0x3e9a5c, "golf-flag"},       // Augusta
    {0xffdc9e, 0xf29a5c, "mesa"},            // Baja
    {0x7a3b9e, 0x3d1a5c, "trumpet"},         // BourbonStreet
    {0x3a2030, 0x170a12, "curtains"},        // Broadway
    {0x2f4f8f, 0x0f1f3f, "rocket"},          // CapeCanaveral
    {0x7498cc, 0x2d4a7a, "capitol"},         // CapitolHill
    {0xd04a44, 0x7a1f24, "mortarboard"},     // CollegePark
    {0x3a6fd8, 0x1c3d8a, "trophy"},          // Colosseum
    {0x5fc79a, 0x1f6e52, "mushroom"},        // EnchantedForest
    {0x8fd49a, 0x3a8a50, "briefcase"},       // Eureka
    {0xff9ac8, 0xd6408a, "dress"},           // FashionAvenue
    {0xffe2a4, 0xf0b45a, "barn"},            // Heartland
    {0xf5c94c, 0xc98a1a, "clapperboard"},    // Hollywood
    {0x84e2e2, 0x2a9aa8, "dumbbell"},        // HotSprings
    {0xffa64d, 0xe0601a, "megaphone"},       // MadisonAvenue
    {0xa6bacd, 0x56708a, "car"},             // MotorCity
    {0xb0c070, 0x5a6e2a, "wine-glass"},      // NapaValley
    {0xc8925e, 0x7a4a26, "music-notes"},     // Nashville
    {0xffc4b2, 0xb892d2, "eiffel-tower"},    // Paris
    {0x86935c, 0x48522c, "star-pentagon"},   // Pentagon
    {0xffc860, 0xf08a24, "paw-print"},       // Petsburgh
    {0xa4daff, 0x5fb0e8, "picket-fence"},    // PicketFence
    {0xc4f2ff, 0x78cce8, "wave"},            // Pipeline
    {0xc4eea0, 0x6cb85a, "leaf"},            // RainForest
    {0x5b4fcf, 0x2a1f80, "atom"},            // ResearchTriangle
    {0x54405a, 0x1e141e, "shopping-bag"},    // RodeoDrive
    {0x3fae6a, 0x1a6a3a, "chip"},            // SiliconValley
    {0x62798a, 0x2e3e4a, "palette"},         // SoHo
    {0x56d6d0, 0xff9070, "speech-bubbles"},  // SouthBeach
    {0x3a1450, 0x0d0418, "electric-guitar"}, // SunsetStrip
    {0xff8c5a, 0xd9482a, "television"},      // TelevisionCity
    {0x84dcff, 0xffd294, "palm-island"},     // TheTropics
    {0x3fd0ff, 0x2a50e0, "gamepad"},         // TimesSquare
    {0xffe6ec, 0xf6a9bb, "torii"},           // Tokyo
    {0x92304c, 0x4a1024, "piano-keys"},      // Vienna
    {0x2a6e7e, 0x0c2f3a, "stock-chart"},     // WallStreet
    {0xcca2ec, 0x8a5ac0, "venus"},           // Wellesley
    {0xe8f6ff, 0xa8d4f2, "rainbow"},         // WestHollywood
    {0xa8d6f4, 0x5a9ad0, "mountains"},       // Yosemite
};

const Look JapanLooks[] = {
    {0xf2a6a6, 0xc05060, "house"},       // added by the user
    {0x3a2a7a, 0x10082a, "moon-stars"},  // Milkyway
    {0xffe08a, 0xf0b030, "motorcycle"},  // MotorCity
    {0x34466a, 0x101a30, "scissors"},    // Milano
    {0xff5a92, 0xa01a5a, "microphone"},  // Broadway
    {0x4fc8a0, 0x1f8a6a, "dice"},        // Playtown
    {0xf0d08a, 0xc89a50, "compass"},     // SilkRoad
    {0x7a8aa8, 0x3a4a68, "film-reel"},   // Hollywood
    {0xffdce4, 0xff9ab0, "heart-home"},  // HeartLand
    {0x8ecae6, 0x4a90b8, "open-book"},   // Berkeley
    {0x3e4e60, 0x151f2a, "robot"},       // Technopolis
    {0x6ad46a, 0x2a8a2a, "soccer-ball"}, // Colosseum
    {0xb0beff, 0x6070d0, "monitor"},     // SiliconValley
    {0xffeac4, 0xf0c890, "rice-bowl"},   // EpicureanTable
    {0x40407a, 0x1a1a3a, "scales"},      // WallStreet
};

constexpr int UsaCount = int(std::size(UsaLooks));
constexpr int JapanCount = int(std::size(JapanLooks));

// The drawing with a soft shadow below it: drawn once onto a layer, whose
// shape, darkened and shifted down, goes under it.
void drawMotif(QPainter& p, const char* motif, qreal dpr)
{
    QImage layer(QSize(NeighborhoodPictures::Size, NeighborhoodPictures::Size) * dpr,
                 QImage::Format_ARGB32_Premultiplied);
    layer.setDevicePixelRatio(dpr);
    layer.fill(Qt::transparent);
    {
        QPainter lp(&layer);
        lp.setRenderHint(QPainter::Antialiasing);
        registerPictures();
        QSvgRenderer drawing(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(motif)));
        drawing.render(&lp, QRectF(0, 0, NeighborhoodPictures::Size, NeighborhoodPictures::Size));
    }
    QImage shadow = layer;
    {
        QPainter sp(&shadow);
        sp.setCompositionMode(QPainter::CompositionMode_SourceIn);
        sp.fillRect(shadow.rect(), QColor(0, 0, 0, 70));
    }
    p.drawImage(QPointF(0.6, 1.4), shadow);
    p.drawImage(QPointF(0, 0), layer);
}

QPixmap render(const Look& look, qreal dpr)
{
    const int size = NeighborhoodPictures::Size;
    QImage image(QSize(size, size) * dpr, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(dpr);
    image.fill(Qt::transparent);
    QPainter p(&image);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF tile(1, 1, size - 2, size - 2);
    QPainterPath shape;
    shape.addRoundedRect(tile, 12, 12);
    const QColor top = QColor::fromRgb(look.top), bottom = QColor::fromRgb(look.bottom);
    QLinearGradient background(0, 0, 0, size);
    background.setColorAt(0, top);
    background.setColorAt(1, bottom);
    p.fillPath(shape, background);
    p.save();
    p.setClipPath(shape);
    drawMotif(p, look.motif, dpr);
    p.restore();
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(255, 255, 255, 70), 1));
    p.drawRoundedRect(tile.adjusted(1, 1, -1, -1), 11, 11);
    p.setPen(QPen(bottom.darker(150), 1));
    p.drawPath(shape);
    p.end();
    return QPixmap::fromImage(image);
}

} // namespace

int NeighborhoodPictures::usaCount()
{
    return UsaCount;
}

int NeighborhoodPictures::japanCount()
{
    return JapanCount;
}

QPixmap NeighborhoodPictures::picture(bool japan, int entry)
{
    const int count = japan ? JapanCount : UsaCount;
    if (entry < 1 || entry > count)
        entry = 1;
    const qreal dpr = qGuiApp ? qGuiApp->devicePixelRatio() : 1.0;
    static QHash<int, QPixmap> cache;
    static qreal cachedRatio = 0;
    if (dpr != cachedRatio) {
        cache.clear();
        cachedRatio = dpr;
    }
    const int key = (japan ? 1000 : 0) + entry;
    auto found = cache.constFind(key);
    if (found != cache.constEnd())
        return *found;
    const QPixmap made = render((japan ? JapanLooks : UsaLooks)[entry - 1], dpr);
    cache.insert(key, made);
    return made;
}

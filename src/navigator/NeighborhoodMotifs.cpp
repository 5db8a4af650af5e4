#include "navigator/NeighborhoodMotifs.h"

#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QtMath>
#include <initializer_list>
#include <iterator>

namespace {

using Motif = NeighborhoodMotifs::Motif;

const QColor White(255, 255, 255);
const QColor Gold(247, 201, 72);
const QColor Ink(38, 36, 48);

QPen stroke(const QColor& c, qreal width)
{
    QPen pen(c, width);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    return pen;
}

void fill(QPainter& p, const QColor& c)
{
    p.setPen(Qt::NoPen);
    p.setBrush(c);
}

void outline(QPainter& p, const QColor& c, qreal width)
{
    p.setPen(stroke(c, width));
    p.setBrush(Qt::NoBrush);
}

QPolygonF poly(std::initializer_list<QPointF> points)
{
    return QPolygonF(QList<QPointF>(points));
}

QPointF polar(QPointF centre, qreal radius, qreal degrees)
{
    const qreal a = qDegreesToRadians(degrees);
    return centre + QPointF(radius * qCos(a), radius * qSin(a));
}

// A star of `points` tips; the first tip points straight up.
QPolygonF star(QPointF centre, qreal outer, qreal inner, int points, qreal turn = 0)
{
    QPolygonF s;
    for (int i = 0; i < 2 * points; ++i)
        s << polar(centre, i % 2 ? inner : outer, -90 + turn + i * 180.0 / points);
    return s;
}

void sparkle(QPainter& p, QPointF centre, qreal radius, const QColor& c = White)
{
    fill(p, c);
    p.drawPolygon(star(centre, radius, radius * 0.3, 4));
}

QPolygonF regular(QPointF centre, qreal radius, int sides, qreal turn = 0)
{
    QPolygonF s;
    for (int i = 0; i < sides; ++i)
        s << polar(centre, radius, -90 + turn + i * 360.0 / sides);
    return s;
}

QPainterPath heart(const QRectF& r)
{
    const qreal cx = r.center().x(), top = r.top(), h = r.height();
    QPainterPath path(QPointF(cx, top + 0.3 * h));
    path.cubicTo(cx, top, r.left(), top, r.left(), top + 0.3 * h);
    path.cubicTo(r.left(), top + 0.6 * h, cx, top + 0.8 * h, cx, r.bottom());
    path.cubicTo(cx, top + 0.8 * h, r.right(), top + 0.6 * h, r.right(), top + 0.3 * h);
    path.cubicTo(r.right(), top, cx, top, cx, top + 0.3 * h);
    return path;
}

// A leaf or frond from `from` to `to`; `width` is its bulge on each side as
// a share of its length.
QPainterPath leaf(QPointF from, QPointF to, qreal width)
{
    const QLineF axis(from, to);
    const QPointF mid = axis.center();
    const QLineF normal = axis.normalVector().unitVector();
    const QPointF side = (normal.p2() - normal.p1()) * width * axis.length();
    QPainterPath path(from);
    path.quadTo(mid + side, to);
    path.quadTo(mid - side, from);
    return path;
}

void ellipseAt(QPainter& p, QPointF centre, qreal rx, qreal ry, qreal degrees)
{
    p.save();
    p.translate(centre);
    p.rotate(degrees);
    p.drawEllipse(QPointF(0, 0), rx, ry);
    p.restore();
}

void house(QPainter& p)
{
    fill(p, QColor(150, 62, 50));
    p.drawRect(QRectF(38, 17, 5, 12));
    fill(p, QColor(250, 246, 236));
    p.drawRect(QRectF(18, 31, 28, 21));
    fill(p, QColor(205, 72, 56));
    p.drawPolygon(poly({{11, 34}, {32, 14}, {53, 34}}));
    fill(p, QColor(125, 84, 52));
    p.drawRoundedRect(QRectF(28.5, 39, 7, 13), 1, 1);
    fill(p, QColor(255, 212, 92));
    p.drawRect(QRectF(21, 37, 5, 5));
    p.drawRect(QRectF(38, 37, 5, 5));
}

void planet(QPainter& p)
{
    sparkle(p, {13, 14}, 4);
    sparkle(p, {51, 51}, 3);
    sparkle(p, {50, 12}, 2.2);
    sparkle(p, {14, 50}, 2);
    p.save();
    p.translate(32, 33);
    p.rotate(-22);
    const QRectF ring(-25, -7, 50, 14);
    outline(p, QColor(255, 226, 160), 2.6);
    p.drawEllipse(ring);
    QRadialGradient g(QPointF(-4, -5), 15);
    g.setColorAt(0, QColor(255, 196, 126));
    g.setColorAt(1, QColor(214, 88, 62));
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawEllipse(QPointF(0, 0), 12.5, 12.5);
    outline(p, QColor(255, 226, 160), 2.6);
    p.drawArc(ring, 180 * 16, 180 * 16);
    p.restore();
}

void temple(QPainter& p)
{
    const QColor marble(250, 248, 240);
    fill(p, marble);
    p.drawPolygon(poly({{11, 24}, {32, 12}, {53, 24}}));
    p.drawRect(QRectF(12, 24.5, 40, 4));
    p.drawRect(QRectF(12, 47, 40, 3.5));
    p.drawRect(QRectF(9, 51, 46, 3.5));
    fill(p, QColor(214, 210, 198));
    p.drawPolygon(poly({{18, 22.5}, {32, 15}, {46, 22.5}}));
    for (int i = 0; i < 4; ++i) {
        const qreal x = 16 + i * 8.67;
        fill(p, marble);
        p.drawRect(QRectF(x, 31, 6, 16));
        p.drawRect(QRectF(x - 1, 29.5, 8, 2));
        outline(p, QColor(196, 192, 180), 0.8);
        p.drawLine(QPointF(x + 2, 33), QPointF(x + 2, 45));
        p.drawLine(QPointF(x + 4, 33), QPointF(x + 4, 45));
    }
}

void golfFlag(QPainter& p)
{
    fill(p, QColor(118, 196, 88));
    p.drawEllipse(QRectF(6, 40, 52, 17));
    fill(p, QColor(28, 62, 30));
    p.drawEllipse(QRectF(34, 45.5, 8, 3));
    p.setPen(stroke(White, 2));
    p.drawLine(QPointF(38, 47), QPointF(38, 11));
    fill(p, QColor(255, 214, 60));
    p.drawPolygon(poly({{39, 11}, {54, 16.5}, {39, 22}}));
    fill(p, White);
    p.drawEllipse(QPointF(20, 46), 3, 3);
}

void mesa(QPainter& p)
{
    fill(p, QColor(255, 236, 150));
    p.drawEllipse(QPointF(45, 18), 7, 7);
    fill(p, QColor(168, 74, 44));
    p.drawPolygon(
        poly({{-2, 50}, {8, 32}, {24, 32}, {28, 39}, {38, 39}, {42, 28}, {60, 28}, {66, 50}}));
    fill(p, QColor(232, 176, 108));
    p.drawRect(QRectF(-2, 48, 68, 18));
    const QColor cactus(54, 128, 70);
    fill(p, cactus);
    p.drawRoundedRect(QRectF(20, 27, 6, 27), 3, 3);
    p.drawRoundedRect(QRectF(13, 33, 5, 12), 2.5, 2.5);
    p.drawRoundedRect(QRectF(14, 41, 9, 4), 2, 2);
    p.drawRoundedRect(QRectF(28, 30, 5, 11), 2.5, 2.5);
    p.drawRoundedRect(QRectF(24, 37, 8, 4), 2, 2);
    p.setPen(QPen(QColor(190, 130, 80), 1.3, Qt::DashLine));
    QPainterPath track(QPointF(36, 64));
    track.quadTo(44, 54, 64, 52);
    p.setBrush(Qt::NoBrush);
    p.drawPath(track);
}

void trumpet(QPainter& p)
{
    const QColor dark(176, 116, 28);
    p.save();
    p.translate(32, 32);
    p.rotate(-15);
    p.translate(-32, -32);
    outline(p, Gold, 3);
    p.drawRoundedRect(QRectF(17, 34, 22, 8), 4, 4);
    p.setPen(stroke(Gold, 3.5));
    p.drawLine(QPointF(10, 34), QPointF(40, 34));
    fill(p, Gold);
    p.drawRect(QRectF(6, 31.5, 4, 5));
    QPainterPath bell(QPointF(38, 31));
    bell.cubicTo(46, 30, 50, 24, 56, 20);
    bell.lineTo(56, 48);
    bell.cubicTo(50, 44, 46, 38, 38, 37);
    bell.closeSubpath();
    p.drawPath(bell);
    fill(p, dark);
    p.drawEllipse(QRectF(53.5, 20, 5, 28));
    for (qreal x : {20.0, 25.5, 31.0}) {
        fill(p, Gold);
        p.drawRect(QRectF(x, 25, 3.5, 9));
        fill(p, dark);
        p.drawRect(QRectF(x - 0.75, 22.5, 5, 2.5));
    }
    p.restore();
}

void curtain(QPainter& p, const QColor& cloth, const QColor& fold)
{
    QPainterPath drape(QPointF(0, 8));
    drape.lineTo(25, 8);
    drape.cubicTo(20, 24, 13, 40, 19, 58);
    drape.lineTo(0, 58);
    drape.closeSubpath();
    fill(p, cloth);
    p.drawPath(drape);
    outline(p, fold, 1.3);
    for (qreal x : {6.0, 12.0, 18.0}) {
        QPainterPath line(QPointF(x, 12));
        line.cubicTo(x - 2, 28, x - 4, 42, x * 0.6, 56);
        p.drawPath(line);
    }
}

void curtains(QPainter& p)
{
    fill(p, QColor(120, 72, 42));
    p.drawRect(QRectF(0, 50, 64, 14));
    fill(p, QColor(255, 240, 180, 70));
    p.drawPolygon(poly({{32, 6}, {19, 52}, {45, 52}}));
    fill(p, QColor(255, 240, 180, 170));
    p.drawEllipse(QRectF(18, 48, 28, 6));
    const QColor cloth(204, 32, 48), fold(140, 16, 32);
    curtain(p, cloth, fold);
    p.save();
    p.translate(64, 0);
    p.scale(-1, 1);
    curtain(p, cloth, fold);
    p.restore();
    fill(p, Gold);
    p.drawRect(QRectF(0, 2, 64, 9));
    for (int x = 4; x <= 60; x += 8)
        p.drawEllipse(QPointF(x, 11), 4, 3);
}

void rocket(QPainter& p)
{
    sparkle(p, {14, 15}, 3.5);
    sparkle(p, {50, 48}, 2.8);
    sparkle(p, {24, 8}, 1.8);
    p.save();
    p.translate(32, 32);
    p.rotate(45);
    fill(p, QColor(255, 150, 40));
    QPainterPath flame(QPointF(-5.5, 14));
    flame.quadTo(0, 34, 5.5, 14);
    p.drawPath(flame);
    fill(p, QColor(255, 230, 110));
    QPainterPath core(QPointF(-3, 14));
    core.quadTo(0, 25, 3, 14);
    p.drawPath(core);
    const QColor red(222, 60, 60);
    fill(p, red);
    p.drawPolygon(poly({{-7, 2}, {-14, 17}, {-6, 13}}));
    p.drawPolygon(poly({{7, 2}, {14, 17}, {6, 13}}));
    QPainterPath body(QPointF(0, -24));
    body.cubicTo(9, -14, 9, 4, 7, 14);
    body.lineTo(-7, 14);
    body.cubicTo(-9, 4, -9, -14, 0, -24);
    fill(p, QColor(246, 246, 250));
    p.drawPath(body);
    p.save();
    p.setClipRect(QRectF(-10, -26, 20, 13), Qt::IntersectClip);
    fill(p, red);
    p.drawPath(body);
    p.restore();
    p.setPen(QPen(QColor(200, 200, 210), 1.5));
    p.setBrush(QColor(90, 170, 230));
    p.drawEllipse(QPointF(0, -3), 4, 4);
    p.restore();
}

void capitol(QPainter& p)
{
    const QColor stone(248, 246, 240), shade(190, 186, 176);
    fill(p, stone);
    p.drawRect(QRectF(7, 43, 50, 9));
    p.drawRect(QRectF(5, 52, 54, 3));
    p.drawRect(QRectF(19, 33, 26, 10));
    QPainterPath dome(QPointF(18, 34));
    dome.cubicTo(18, 18, 46, 18, 46, 34);
    dome.closeSubpath();
    p.drawPath(dome);
    p.drawRect(QRectF(29.5, 16, 5, 7));
    p.drawPolygon(poly({{30, 16.5}, {32, 8}, {34, 16.5}}));
    outline(p, shade, 1);
    for (int x = 22; x <= 42; x += 4)
        p.drawLine(QPointF(x, 35), QPointF(x, 42));
    p.drawLine(QPointF(32, 21), QPointF(32, 33));
    p.drawArc(QRectF(24, 22, 16, 22), 20 * 16, 140 * 16);
    fill(p, shade);
    for (int x = 10; x <= 52; x += 5) {
        if (x < 19 || x > 44)
            p.drawRect(QRectF(x, 45.5, 2.5, 4));
    }
}

void mortarboard(QPainter& p)
{
    QPainterPath cap(QPointF(19, 29));
    cap.lineTo(19, 41);
    cap.cubicTo(26, 46, 38, 46, 45, 41);
    cap.lineTo(45, 29);
    cap.closeSubpath();
    fill(p, QColor(52, 52, 68));
    p.drawPath(cap);
    p.setPen(QPen(QColor(96, 96, 120), 1));
    p.setBrush(Ink);
    p.drawPolygon(poly({{5, 27}, {32, 15}, {59, 27}, {32, 39}}));
    p.setPen(stroke(Gold, 1.7));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(poly({{32, 27}, {50, 31}, {50, 41}}));
    fill(p, Gold);
    p.drawEllipse(QPointF(32, 27), 2.2, 2.2);
    p.drawPolygon(poly({{48, 40}, {52, 40}, {53.5, 50}, {46.5, 50}}));
}

void trophy(QPainter& p)
{
    QLinearGradient g(16, 0, 48, 0);
    g.setColorAt(0, QColor(255, 226, 120));
    g.setColorAt(1, QColor(212, 146, 36));
    p.setPen(stroke(QColor(236, 180, 60), 3));
    p.setBrush(Qt::NoBrush);
    QPainterPath handles(QPointF(19, 17));
    handles.cubicTo(9, 17, 9, 31, 23, 31);
    handles.moveTo(45, 17);
    handles.cubicTo(55, 17, 55, 31, 41, 31);
    p.drawPath(handles);
    QPainterPath cup(QPointF(17, 12));
    cup.lineTo(47, 12);
    cup.cubicTo(47, 30, 40, 37, 32, 37);
    cup.cubicTo(24, 37, 17, 30, 17, 12);
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawPath(cup);
    p.drawRect(QRectF(29.5, 36, 5, 8));
    p.drawRect(QRectF(22, 43, 20, 4));
    fill(p, QColor(150, 96, 40));
    p.drawRoundedRect(QRectF(18, 47, 28, 7), 1.5, 1.5);
    fill(p, QColor(255, 236, 170));
    p.drawRect(QRectF(26, 49.5, 12, 2));
    fill(p, White);
    p.drawPolygon(star({32, 23}, 6, 2.5, 5));
}

void mushroom(QPainter& p)
{
    fill(p, QColor(64, 148, 72));
    p.drawEllipse(QRectF(-4, 50, 72, 22));
    sparkle(p, {53, 13}, 3.5, QColor(255, 250, 200));
    sparkle(p, {11, 13}, 2.5, QColor(255, 250, 200));
    sparkle(p, {50, 46}, 2, QColor(255, 250, 200));
    QPainterPath stem(QPointF(25, 34));
    stem.cubicTo(24, 44, 22, 50, 24, 54);
    stem.lineTo(40, 54);
    stem.cubicTo(42, 50, 40, 44, 39, 34);
    fill(p, QColor(246, 236, 212));
    p.drawPath(stem);
    QPainterPath cap(QPointF(9, 37));
    cap.cubicTo(9, 12, 55, 12, 55, 37);
    cap.cubicTo(44, 41, 20, 41, 9, 37);
    fill(p, QColor(218, 44, 44));
    p.drawPath(cap);
    fill(p, White);
    p.drawEllipse(QPointF(22, 26), 3.6, 3.6);
    p.drawEllipse(QPointF(34, 21), 3.2, 3.2);
    p.drawEllipse(QPointF(45, 28), 3.3, 3.3);
    p.drawEllipse(QPointF(31, 32), 2.3, 2.3);
    p.drawEllipse(QPointF(15, 33), 1.8, 1.8);
}

void briefcase(QPainter& p)
{
    const QColor leather(136, 84, 46), dark(92, 54, 28);
    outline(p, dark, 3);
    p.drawRoundedRect(QRectF(24, 15, 16, 12), 4, 4);
    fill(p, leather);
    p.drawRoundedRect(QRectF(9, 23, 46, 29), 4, 4);
    p.setPen(stroke(dark, 1.6));
    p.drawLine(QPointF(9.5, 34), QPointF(54.5, 34));
    p.setPen(QPen(QColor(180, 128, 80), 0.8, Qt::DashLine));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(12, 26, 40, 23), 2.5, 2.5);
    fill(p, Gold);
    p.drawRoundedRect(QRectF(28.5, 30.5, 7, 7), 1.2, 1.2);
}

void dress(QPainter& p)
{
    outline(p, QColor(226, 226, 236), 2);
    QPainterPath hanger(QPointF(32, 17));
    hanger.cubicTo(32, 13, 36, 9, 36.5, 12.5);
    p.drawPath(hanger);
    p.drawPolyline(poly({{18, 23}, {32, 17}, {46, 23}}));
    QPainterPath gown(QPointF(24, 21));
    gown.lineTo(28, 21);
    gown.quadTo(32, 26, 36, 21);
    gown.lineTo(40, 21);
    gown.lineTo(37.5, 33);
    gown.cubicTo(44, 42, 48, 50, 51, 56);
    gown.lineTo(13, 56);
    gown.cubicTo(16, 50, 20, 42, 26.5, 33);
    gown.closeSubpath();
    fill(p, Ink);
    p.drawPath(gown);
    fill(p, QColor(255, 190, 220));
    p.drawRect(QRectF(26.5, 31.5, 11, 2.5));
    outline(p, QColor(80, 76, 96), 1);
    p.drawLine(QPointF(30, 36), QPointF(24, 55));
    p.drawLine(QPointF(34, 36), QPointF(40, 55));
}

void barn(QPainter& p)
{
    fill(p, QColor(104, 168, 76));
    p.drawRect(QRectF(0, 50, 64, 14));
    QPainterPath body(QPointF(14, 53));
    body.lineTo(14, 30);
    body.lineTo(20, 20);
    body.lineTo(32, 13);
    body.lineTo(44, 20);
    body.lineTo(50, 30);
    body.lineTo(50, 53);
    body.closeSubpath();
    fill(p, QColor(192, 46, 40));
    p.drawPath(body);
    outline(p, White, 2);
    p.drawPolyline(poly({{12, 32}, {20, 20}, {32, 13}, {44, 20}, {52, 32}}));
    p.setPen(stroke(White, 1.6));
    const QRectF door(24, 37, 16, 16);
    p.drawRect(door);
    p.drawLine(door.topLeft(), door.bottomRight());
    p.drawLine(door.topRight(), door.bottomLeft());
    p.drawRect(QRectF(29, 23, 6, 6));
}

void clapperboard(QPainter& p)
{
    const QColor dark(36, 36, 42);
    fill(p, dark);
    p.drawRoundedRect(QRectF(11, 28, 42, 25), 2, 2);
    outline(p, QColor(200, 200, 200), 1);
    p.drawLine(QPointF(15, 41), QPointF(49, 41));
    p.drawLine(QPointF(15, 47), QPointF(49, 47));
    p.drawLine(QPointF(32, 41), QPointF(32, 51));
    auto stripes = [&p, &dark](const QRectF& r) {
        fill(p, dark);
        p.drawRect(r);
        p.save();
        p.setClipRect(r, Qt::IntersectClip);
        fill(p, White);
        for (qreal x = r.left() - 6; x < r.right(); x += 9)
            p.drawPolygon(poly(
                {{x + 4, r.top()}, {x + 8.5, r.top()}, {x + 4.5, r.bottom()}, {x, r.bottom()}}));
        p.restore();
    };
    stripes(QRectF(11, 28, 42, 7));
    p.save();
    p.translate(11, 26.5);
    p.rotate(-20);
    stripes(QRectF(0, -7, 42, 7));
    p.restore();
}

void dumbbell(QPainter& p)
{
    p.save();
    p.translate(32, 32);
    p.rotate(-30);
    fill(p, QColor(206, 210, 220));
    p.drawRoundedRect(QRectF(-21, -2, 42, 4), 2, 2);
    fill(p, QColor(58, 64, 80));
    for (int side : {-1, 1}) {
        p.drawRoundedRect(QRectF(side < 0 ? -19 : 13, -11, 6, 22), 2, 2);
        p.drawRoundedRect(QRectF(side < 0 ? -13 : 9, -8, 4, 16), 1.5, 1.5);
    }
    p.restore();
    outline(p, QColor(255, 255, 255, 190), 1.8);
    for (qreal x : {40.0, 47.0}) {
        QPainterPath steam(QPointF(x, 56));
        steam.cubicTo(x - 3, 53, x + 3, 50, x, 47);
        p.drawPath(steam);
    }
}

void megaphone(QPainter& p)
{
    const QColor red(200, 58, 48);
    fill(p, red);
    p.drawPolygon(poly({{21, 36}, {26, 37.5}, {26, 47}, {21, 47}}));
    p.drawRoundedRect(QRectF(8, 27, 7, 10), 2, 2);
    fill(p, White);
    p.drawPolygon(poly({{14, 28}, {42, 16}, {42, 48}, {14, 36}}));
    fill(p, QColor(220, 222, 230));
    p.drawEllipse(QRectF(39, 16, 6, 32));
    outline(p, White, 2.2);
    p.drawArc(QRectF(32, 22, 20, 20), -45 * 16, 90 * 16);
    p.drawArc(QRectF(26, 16, 32, 32), -40 * 16, 80 * 16);
}

void car(QPainter& p)
{
    fill(p, QColor(70, 76, 88));
    p.drawRect(QRectF(0, 48, 64, 16));
    p.setPen(QPen(White, 1.5, Qt::DashLine));
    p.drawLine(QPointF(2, 57), QPointF(62, 57));
    QPainterPath body(QPointF(7, 45));
    body.lineTo(8, 36);
    body.quadTo(9, 33, 14, 32);
    body.lineTo(20, 31);
    body.lineTo(26, 23);
    body.quadTo(27, 22, 30, 22);
    body.lineTo(42, 22);
    body.quadTo(45, 22, 47, 25);
    body.lineTo(51, 31);
    body.quadTo(57, 32, 57, 36);
    body.lineTo(57, 45);
    body.closeSubpath();
    fill(p, QColor(222, 50, 50));
    p.drawPath(body);
    fill(p, QColor(192, 226, 246));
    p.drawPolygon(poly({{22, 31}, {27, 24.5}, {35, 24.5}, {35, 31}}));
    p.drawPolygon(poly({{37, 31}, {37, 24.5}, {43, 24.5}, {48, 31}}));
    fill(p, QColor(255, 226, 120));
    p.drawRect(QRectF(54, 35, 3, 3));
    for (qreal x : {18.0, 46.0}) {
        fill(p, QColor(30, 30, 36));
        p.drawEllipse(QPointF(x, 45), 6, 6);
        fill(p, QColor(200, 200, 210));
        p.drawEllipse(QPointF(x, 45), 2.5, 2.5);
    }
}

void wineGlass(QPainter& p)
{
    QPainterPath bowl(QPointF(15, 12));
    bowl.lineTo(37, 12);
    bowl.cubicTo(38, 27, 34, 34, 26, 35);
    bowl.cubicTo(18, 34, 14, 27, 15, 12);
    fill(p, QColor(255, 255, 255, 60));
    p.drawPath(bowl);
    p.save();
    p.setClipPath(bowl, Qt::IntersectClip);
    fill(p, QColor(128, 18, 48));
    p.drawRect(QRectF(10, 21, 32, 16));
    p.restore();
    outline(p, White, 1.8);
    p.drawPath(bowl);
    p.drawLine(QPointF(26, 35), QPointF(26, 48));
    fill(p, White);
    p.drawEllipse(QRectF(18, 47, 16, 4));
    fill(p, QColor(92, 150, 60));
    p.drawPath(leaf({47, 27}, {54, 19}, 0.4));
    fill(p, QColor(124, 62, 156));
    const QPointF grapes[] = {{42, 31}, {48, 31}, {54, 31}, {45, 37}, {51, 37}, {48, 43}};
    for (const QPointF& g : grapes)
        p.drawEllipse(g, 3.3, 3.3);
    fill(p, QColor(255, 255, 255, 90));
    for (const QPointF& g : grapes)
        p.drawEllipse(g + QPointF(-1, -1), 1, 1);
}

void musicNotes(QPainter& p)
{
    fill(p, White);
    ellipseAt(p, {20, 45}, 5.5, 4, -20);
    ellipseAt(p, {42, 41}, 5.5, 4, -20);
    p.drawRect(QRectF(23.4, 17, 2.4, 28));
    p.drawRect(QRectF(45.4, 13, 2.4, 28));
    p.drawPolygon(poly({{23.4, 15}, {47.8, 10}, {47.8, 16.5}, {23.4, 21.5}}));
    sparkle(p, {12, 16}, 3.5, Gold);
}

void eiffelTower(QPainter& p)
{
    const QColor iron(52, 40, 82);
    fill(p, iron);
    p.drawPolygon(poly({{31, 5}, {33, 5}, {34.5, 22}, {29.5, 22}}));
    p.drawPolygon(poly({{29.5, 22}, {34.5, 22}, {37, 34}, {27, 34}}));
    p.drawRect(QRectF(25.5, 33, 13, 2.5));
    p.drawPolygon(poly({{27, 35.5}, {37, 35.5}, {41, 44}, {23, 44}}));
    p.drawRect(QRectF(20, 43, 24, 3));
    QPainterPath legs(QPointF(22, 46));
    legs.lineTo(42, 46);
    legs.lineTo(51, 59);
    legs.lineTo(43, 59);
    legs.quadTo(32, 47, 21, 59);
    legs.lineTo(13, 59);
    legs.closeSubpath();
    p.drawPath(legs);
    fill(p, QColor(255, 244, 220));
    p.drawEllipse(QPointF(50, 16), 4, 4);
}

void starPentagon(QPainter& p)
{
    p.setPen(QPen(QColor(150, 140, 96), 1.5));
    p.setBrush(QColor(228, 218, 174));
    p.drawPolygon(regular({32, 34}, 24, 5));
    p.setBrush(Qt::NoBrush);
    p.drawPolygon(regular({32, 34}, 18, 5));
    fill(p, QColor(72, 86, 46));
    p.drawPolygon(star({32, 34}, 12, 4.8, 5));
}

void pawPrint(QPainter& p)
{
    fill(p, White);
    QPainterPath pad(QPointF(32, 33));
    pad.cubicTo(42, 33, 47, 44, 45, 48);
    pad.cubicTo(43, 53, 37, 52, 32, 52);
    pad.cubicTo(27, 52, 21, 53, 19, 48);
    pad.cubicTo(17, 44, 22, 33, 32, 33);
    p.drawPath(pad);
    ellipseAt(p, {15.5, 30}, 4.2, 5.6, -25);
    ellipseAt(p, {25, 20}, 4.4, 6, -8);
    ellipseAt(p, {39, 20}, 4.4, 6, 8);
    ellipseAt(p, {48.5, 30}, 4.2, 5.6, 25);
}

void picketFence(QPainter& p)
{
    fill(p, QColor(255, 226, 110));
    p.drawEllipse(QPointF(50, 14), 6.5, 6.5);
    fill(p, QColor(88, 168, 78));
    p.drawRect(QRectF(0, 50, 64, 14));
    fill(p, QColor(228, 228, 222));
    p.drawRect(QRectF(2, 30, 60, 4));
    p.drawRect(QRectF(2, 42, 60, 4));
    p.setPen(QPen(QColor(186, 186, 180), 0.8));
    p.setBrush(White);
    for (int i = 0; i < 5; ++i) {
        const qreal x = 5 + i * 11;
        p.drawPolygon(poly({{x, 53}, {x, 25}, {x + 4, 19}, {x + 8, 25}, {x + 8, 53}}));
    }
}

void wave(QPainter& p)
{
    fill(p, QColor(255, 240, 170));
    p.drawEllipse(QPointF(14, 14), 6, 6);
    QPainterPath sea(QPointF(-2, 66));
    sea.lineTo(-2, 46);
    sea.cubicTo(10, 42, 16, 26, 30, 18);
    sea.cubicTo(42, 11, 57, 14, 59, 27);
    sea.cubicTo(53, 20, 44, 22, 43, 30);
    sea.cubicTo(42, 38, 50, 44, 66, 42);
    sea.lineTo(66, 66);
    sea.closeSubpath();
    QLinearGradient g(0, 14, 0, 64);
    g.setColorAt(0, QColor(40, 140, 200));
    g.setColorAt(1, QColor(14, 64, 130));
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawPath(sea);
    outline(p, White, 3);
    QPainterPath crest(QPointF(26, 21));
    crest.cubicTo(40, 11, 56, 14, 58.5, 26);
    p.drawPath(crest);
    outline(p, QColor(255, 255, 255, 150), 1.5);
    QPainterPath foam(QPointF(0, 52));
    foam.cubicTo(16, 48, 40, 58, 64, 50);
    p.drawPath(foam);
    fill(p, White);
    p.drawEllipse(QPointF(56, 31), 1.5, 1.5);
    p.drawEllipse(QPointF(52, 33), 1.1, 1.1);
}

void rainLeaf(QPainter& p)
{
    QPainterPath blade(QPointF(14, 52));
    blade.cubicTo(9, 30, 26, 11, 53, 11);
    blade.cubicTo(53, 36, 36, 53, 14, 52);
    fill(p, QColor(46, 154, 72));
    p.drawPath(blade);
    outline(p, QColor(190, 240, 170), 1.6);
    QPainterPath rib(QPointF(14, 52));
    rib.quadTo(30, 34, 50, 14);
    p.drawPath(rib);
    outline(p, QColor(190, 240, 170), 1);
    for (qreal t : {0.3, 0.5, 0.7}) {
        const QPointF at(14 + 36 * t, 52 - 38 * t);
        p.drawLine(at, at + QPointF(-8, -7));
        p.drawLine(at, at + QPointF(7, 8));
    }
    p.setPen(stroke(QColor(40, 110, 50), 2.2));
    p.drawLine(QPointF(14, 52), QPointF(8, 58));
    fill(p, QColor(210, 238, 255));
    QPainterPath drop(QPointF(48, 40));
    drop.quadTo(53, 47, 48, 50);
    drop.quadTo(43, 47, 48, 40);
    p.drawPath(drop);
}

void atom(QPainter& p)
{
    for (qreal angle : {0.0, 60.0, 120.0}) {
        p.save();
        p.translate(32, 32);
        p.rotate(angle);
        outline(p, White, 2);
        p.drawEllipse(QRectF(-23, -8, 46, 16));
        fill(p, QColor(120, 226, 255));
        p.drawEllipse(QPointF(23 * qCos(0.9), 8 * qSin(0.9)), 2.6, 2.6);
        p.restore();
    }
    fill(p, QColor(255, 200, 80));
    p.drawEllipse(QPointF(32, 32), 5, 5);
}

void shoppingBag(QPainter& p)
{
    outline(p, Gold, 2.2);
    QPainterPath handle(QPointF(24, 27));
    handle.cubicTo(24, 12, 40, 12, 40, 27);
    p.drawPath(handle);
    fill(p, White);
    p.drawPolygon(poly({{15, 24}, {49, 24}, {52, 55}, {12, 55}}));
    fill(p, QColor(228, 226, 232));
    p.drawPolygon(poly({{42, 24}, {49, 24}, {52, 55}, {45, 55}}));
    fill(p, QColor(218, 60, 120));
    p.drawRect(QRectF(13.4, 46, 37.2, 3));
    p.drawPath(heart(QRectF(26, 31, 12, 11)));
    fill(p, Ink);
    p.drawEllipse(QPointF(24, 27.5), 1.4, 1.4);
    p.drawEllipse(QPointF(40, 27.5), 1.4, 1.4);
}

void chip(QPainter& p)
{
    outline(p, QColor(230, 206, 120, 150), 1.2);
    for (int i = 0; i < 5; ++i) {
        const qreal at = 20 + i * 6;
        p.drawLine(QPointF(at, 0), QPointF(at, 12));
        p.drawLine(QPointF(at, 52), QPointF(at, 64));
        p.drawLine(QPointF(0, at), QPointF(12, at));
        p.drawLine(QPointF(52, at), QPointF(64, at));
    }
    fill(p, QColor(214, 214, 204));
    for (int i = 0; i < 5; ++i) {
        const qreal at = 20 + i * 6 - 1.5;
        p.drawRect(QRectF(at, 10, 3, 8));
        p.drawRect(QRectF(at, 46, 3, 8));
        p.drawRect(QRectF(10, at, 8, 3));
        p.drawRect(QRectF(46, at, 8, 3));
    }
    fill(p, QColor(36, 40, 46));
    p.drawRoundedRect(QRectF(15, 15, 34, 34), 3, 3);
    outline(p, QColor(96, 106, 116), 1);
    p.drawRect(QRectF(23, 23, 18, 18));
    fill(p, QColor(200, 200, 200));
    p.drawEllipse(QPointF(19.5, 19.5), 1.4, 1.4);
}

void artPalette(QPainter& p)
{
    QPainterPath board;
    board.addEllipse(QRectF(7, 13, 48, 38));
    QPainterPath cut;
    cut.addEllipse(QPointF(21, 40), 4, 4);
    cut.addEllipse(QRectF(2, 33, 12, 10));
    p.setPen(QPen(QColor(168, 128, 84), 1));
    p.setBrush(QColor(228, 194, 144));
    p.drawPath(board.subtracted(cut));
    const std::pair<QPointF, QColor> blobs[] = {{{22, 22}, QColor(220, 50, 50)},
                                                {{33, 19}, QColor(250, 204, 50)},
                                                {{44, 24}, QColor(60, 170, 80)},
                                                {{47, 36}, QColor(50, 110, 210)},
                                                {{35, 43}, QColor(250, 250, 250)}};
    for (const auto& [at, colour] : blobs) {
        fill(p, colour);
        p.drawEllipse(at, 3.7, 3.4);
    }
    p.setPen(stroke(QColor(122, 72, 40), 3));
    p.drawLine(QPointF(58, 60), QPointF(40, 40));
    p.setPen(stroke(QColor(200, 200, 210), 3.6));
    p.drawLine(QPointF(40, 40), QPointF(37, 36.5));
    fill(p, QColor(60, 110, 210));
    p.drawPath(leaf({38, 37}, {31, 29.5}, 0.3));
}

void speechBubbles(QPainter& p)
{
    fill(p, QColor(255, 222, 110));
    p.drawRoundedRect(QRectF(24, 30, 33, 20), 10, 10);
    p.drawPolygon(poly({{44, 48}, {52, 56}, {38, 49}}));
    fill(p, White);
    p.drawRoundedRect(QRectF(7, 13, 35, 22), 11, 11);
    p.drawPolygon(poly({{15, 33}, {12, 42}, {24, 34}}));
    fill(p, QColor(40, 140, 150));
    for (qreal x : {17.5, 24.5, 31.5})
        p.drawEllipse(QPointF(x, 24), 2.3, 2.3);
}

void electricGuitar(QPainter& p)
{
    p.save();
    p.translate(32, 32);
    p.rotate(40);
    p.translate(0, 5);
    fill(p, QColor(140, 92, 48));
    p.drawRect(QRectF(-2.3, -28, 4.6, 28));
    fill(p, QColor(30, 30, 34));
    p.drawRoundedRect(QRectF(-3.6, -35, 7.2, 8), 1.5, 1.5);
    fill(p, White);
    for (qreal y : {-33.0, -30.0})
        p.drawEllipse(QPointF(-4.6, y + 0.5), 1, 1);
    QPainterPath body;
    body.addEllipse(QRectF(-12, 1, 24, 21));
    body.addEllipse(QRectF(-9.5, -7, 19, 14));
    body.addEllipse(QRectF(-11, -10, 6, 10));
    body.addEllipse(QRectF(5, -8, 6, 9));
    body.setFillRule(Qt::WindingFill);
    fill(p, QColor(238, 46, 110));
    p.drawPath(body.simplified());
    fill(p, QColor(30, 30, 34));
    p.drawRect(QRectF(-5, 2, 10, 2.5));
    p.drawRect(QRectF(-5, 7.5, 10, 2.5));
    p.drawRect(QRectF(-4, 14, 8, 1.6));
    outline(p, QColor(255, 255, 255, 200), 0.5);
    for (qreal x : {-1.2, 0.0, 1.2})
        p.drawLine(QPointF(x, -27), QPointF(x, 14));
    p.restore();
    outline(p, QColor(255, 120, 200), 1.8);
    p.drawLine(QPointF(48, 48), QPointF(55, 55));
    p.drawLine(QPointF(50, 42), QPointF(58, 44));
    p.drawLine(QPointF(42, 50), QPointF(44, 58));
}

void television(QPainter& p)
{
    outline(p, QColor(52, 52, 58), 1.8);
    p.drawLine(QPointF(32, 19), QPointF(22, 7));
    p.drawLine(QPointF(32, 19), QPointF(42, 8));
    p.drawLine(QPointF(17, 53), QPointF(14, 58));
    p.drawLine(QPointF(47, 53), QPointF(50, 58));
    fill(p, QColor(118, 78, 48));
    p.drawRoundedRect(QRectF(8, 18, 48, 36), 5, 5);
    QLinearGradient g(0, 22, 0, 50);
    g.setColorAt(0, QColor(170, 226, 246));
    g.setColorAt(1, QColor(70, 140, 190));
    p.setPen(Qt::NoPen);
    p.setBrush(g);
    p.drawRoundedRect(QRectF(12, 22, 32, 28), 6, 6);
    fill(p, QColor(255, 255, 255, 80));
    p.drawEllipse(QRectF(15, 24, 14, 7));
    fill(p, QColor(232, 212, 170));
    p.drawEllipse(QPointF(50, 28), 2.8, 2.8);
    p.drawEllipse(QPointF(50, 37), 2.8, 2.8);
    outline(p, QColor(232, 212, 170), 1);
    for (qreal y : {44.0, 46.5, 49.0})
        p.drawLine(QPointF(47.5, y), QPointF(52.5, y));
    fill(p, QColor(52, 52, 58));
    p.drawEllipse(QPointF(32, 18.5), 2, 2);
}

void palmIsland(QPainter& p)
{
    fill(p, QColor(255, 232, 120));
    p.drawEllipse(QPointF(49, 16), 7, 7);
    fill(p, QColor(30, 128, 188));
    p.drawRect(QRectF(0, 47, 64, 17));
    fill(p, QColor(242, 212, 142));
    p.drawEllipse(QRectF(9, 42, 42, 13));
    outline(p, QColor(128, 88, 48), 3.2);
    QPainterPath trunk(QPointF(32, 47));
    trunk.cubicTo(32, 36, 27, 28, 22, 20);
    p.drawPath(trunk);
    fill(p, QColor(40, 150, 70));
    const QPointF top(22, 20);
    for (const QPointF& tip :
         {QPointF(6, 24), QPointF(9, 11), QPointF(23, 6), QPointF(37, 12), QPointF(38, 25)})
        p.drawPath(leaf(top, tip, 0.28));
    outline(p, QColor(255, 255, 255, 150), 1.2);
    p.drawLine(QPointF(6, 58), QPointF(16, 58));
    p.drawLine(QPointF(42, 60), QPointF(56, 60));
}

void gamepad(QPainter& p)
{
    QPainterPath pad;
    pad.addRoundedRect(QRectF(10, 21, 44, 22), 11, 11);
    pad.addEllipse(QRectF(7, 28, 17, 22));
    pad.addEllipse(QRectF(40, 28, 17, 22));
    pad.setFillRule(Qt::WindingFill);
    fill(p, QColor(52, 52, 64));
    p.drawPath(pad.simplified());
    fill(p, QColor(206, 206, 216));
    p.drawRect(QRectF(14, 30.2, 11, 3.6));
    p.drawRect(QRectF(17.7, 26.5, 3.6, 11));
    p.drawRoundedRect(QRectF(27.5, 31, 3.5, 1.8), 0.8, 0.8);
    p.drawRoundedRect(QRectF(33, 31, 3.5, 1.8), 0.8, 0.8);
    const std::pair<QPointF, QColor> buttons[] = {{{45, 27.5}, QColor(236, 70, 70)},
                                                  {{49.5, 32}, QColor(70, 130, 236)},
                                                  {{40.5, 32}, QColor(250, 204, 60)},
                                                  {{45, 36.5}, QColor(70, 200, 100)}};
    for (const auto& [at, colour] : buttons) {
        fill(p, colour);
        p.drawEllipse(at, 2.4, 2.4);
    }
}

void torii(QPainter& p)
{
    fill(p, QColor(255, 255, 255, 210));
    for (const QPointF& at : {QPointF(9, 42), QPointF(55, 38), QPointF(52, 50), QPointF(32, 44)})
        p.drawPolygon(star(at, 2.6, 1.3, 5));
    const QColor red(212, 42, 36), black(44, 32, 32);
    fill(p, red);
    p.drawRect(QRectF(10, 21, 44, 4));
    p.drawRect(QRectF(10, 30, 44, 4));
    p.drawRect(QRectF(30, 24, 4, 7));
    p.drawPolygon(poly({{17.5, 22}, {21.5, 22}, {22.5, 56}, {16.5, 56}}));
    p.drawPolygon(poly({{42.5, 22}, {46.5, 22}, {47.5, 56}, {41.5, 56}}));
    fill(p, black);
    QPainterPath beam(QPointF(5, 14));
    beam.quadTo(32, 21, 59, 14);
    beam.lineTo(57, 20);
    beam.quadTo(32, 25, 7, 20);
    beam.closeSubpath();
    p.drawPath(beam);
    p.drawRect(QRectF(15.5, 54, 8, 3));
    p.drawRect(QRectF(40.5, 54, 8, 3));
}

void pianoKeys(QPainter& p)
{
    fill(p, QColor(30, 20, 22));
    p.drawRoundedRect(QRectF(5, 17, 54, 34), 3, 3);
    fill(p, QColor(168, 34, 48));
    p.drawRect(QRectF(5.5, 19, 53, 3));
    const qreal key = 7.14;
    fill(p, White);
    for (int i = 0; i < 7; ++i)
        p.drawRoundedRect(QRectF(7 + i * key, 23, key - 0.8, 26), 1, 1);
    fill(p, QColor(24, 24, 26));
    for (int i : {0, 1, 3, 4, 5})
        p.drawRoundedRect(QRectF(7 + (i + 1) * key - 2.6, 23, 4.4, 15), 0.8, 0.8);
    fill(p, White);
    p.drawEllipse(QPointF(50, 9.5), 2.4, 1.8);
    p.drawRect(QRectF(51.6, 2, 1.2, 7.5));
}

void arrowHead(QPainter& p, QPointF from, QPointF tip, qreal size)
{
    QLineF back(tip, from);
    back.setLength(size);
    QLineF left = back, right = back;
    left.setAngle(back.angle() + 28);
    right.setAngle(back.angle() - 28);
    p.drawPolygon(poly({tip, left.p2(), right.p2()}));
}

void stockChart(QPainter& p)
{
    outline(p, QColor(255, 255, 255, 220), 1.6);
    p.drawLine(QPointF(9, 53), QPointF(56, 53));
    p.drawLine(QPointF(9, 12), QPointF(9, 53));
    fill(p, QColor(255, 255, 255, 190));
    p.drawRect(QRectF(14, 41, 7, 12));
    p.drawRect(QRectF(24, 35, 7, 18));
    p.drawRect(QRectF(34, 29, 7, 24));
    p.drawRect(QRectF(44, 21, 7, 32));
    p.setPen(stroke(Gold, 3));
    p.setBrush(Qt::NoBrush);
    p.drawPolyline(poly({{12, 40}, {24, 29}, {32, 33}, {48, 16}}));
    fill(p, Gold);
    arrowHead(p, {48, 16}, {54, 9.5}, 9);
}

void venus(QPainter& p)
{
    outline(p, White, 4.5);
    p.drawEllipse(QPointF(32, 24), 11, 11);
    p.drawLine(QPointF(32, 35), QPointF(32, 55));
    p.drawLine(QPointF(24, 46), QPointF(40, 46));
    sparkle(p, {50, 12}, 3.5);
    sparkle(p, {14, 50}, 2.5);
}

void rainbow(QPainter& p)
{
    const QColor bands[] = {QColor(232, 52, 52), QColor(246, 140, 40), QColor(250, 214, 50),
                            QColor(70, 180, 80), QColor(60, 120, 220), QColor(140, 70, 190)};
    qreal radius = 26;
    for (const QColor& c : bands) {
        p.setPen(QPen(c, 3.7, Qt::SolidLine, Qt::FlatCap));
        p.setBrush(Qt::NoBrush);
        p.drawArc(QRectF(32 - radius, 46 - radius, 2 * radius, 2 * radius), 0, 180 * 16);
        radius -= 3.6;
    }
    fill(p, White);
    for (qreal cx : {8.0, 56.0}) {
        p.drawEllipse(QPointF(cx - 5, 48), 5, 5);
        p.drawEllipse(QPointF(cx + 1, 45), 6.5, 6.5);
        p.drawEllipse(QPointF(cx + 7, 48.5), 5, 5);
        p.drawRect(QRectF(cx - 5, 48, 12, 5));
    }
}

void pine(QPainter& p, qreal x, qreal base, qreal height)
{
    p.drawRect(QRectF(x - 1, base - 3, 2, 3));
    for (int tier = 0; tier < 3; ++tier) {
        const qreal bottom = base - 2 - tier * height * 0.26;
        const qreal half = height * (0.36 - tier * 0.08);
        p.drawPolygon(poly({{x - half, bottom}, {x, bottom - height * 0.48}, {x + half, bottom}}));
    }
}

void mountains(QPainter& p)
{
    QPainterPath rock(QPointF(-2, 52));
    rock.lineTo(14, 28);
    rock.cubicTo(18, 14, 34, 12, 36, 21);
    rock.lineTo(38, 34);
    rock.lineTo(47, 25);
    rock.lineTo(66, 52);
    rock.closeSubpath();
    fill(p, QColor(150, 156, 172));
    p.drawPath(rock);
    fill(p, QColor(120, 126, 144));
    p.drawPolygon(poly({{36, 21}, {38, 34}, {33, 44}, {31, 26}}));
    fill(p, White);
    p.drawPolygon(poly({{43, 29}, {47, 25}, {51.5, 31.5}, {47, 30}}));
    fill(p, QColor(42, 112, 62));
    p.drawRect(QRectF(-2, 50, 68, 16));
    fill(p, QColor(28, 88, 52));
    pine(p, 11, 56, 22);
    pine(p, 21, 57, 16);
    pine(p, 50, 57, 24);
}

void moonStars(QPainter& p)
{
    QPainterPath moon;
    moon.addEllipse(QPointF(28, 30), 16, 16);
    QPainterPath bite;
    bite.addEllipse(QPointF(36, 24), 13.5, 13.5);
    fill(p, QColor(255, 234, 150));
    p.drawPath(moon.subtracted(bite));
    fill(p, QColor(255, 244, 200));
    p.drawPolygon(star({49, 14}, 4, 1.7, 5));
    sparkle(p, {14, 12}, 2.5);
    sparkle(p, {54, 30}, 2);
    fill(p, QColor(255, 140, 172));
    p.drawPath(heart(QRectF(39, 38, 15, 14)));
}

void motorcycle(QPainter& p)
{
    outline(p, QColor(34, 34, 40), 3.4);
    p.drawEllipse(QPointF(16, 43), 8, 8);
    p.drawEllipse(QPointF(48, 43), 8, 8);
    p.setPen(stroke(QColor(90, 92, 100), 2.2));
    p.drawPolyline(poly({{16, 43}, {26, 35}, {40, 35}}));
    p.drawLine(QPointF(48, 43), QPointF(43, 23));
    p.drawLine(QPointF(39, 22), QPointF(46, 21));
    p.setPen(stroke(QColor(200, 200, 210), 2.2));
    p.drawLine(QPointF(30, 43), QPointF(12, 39));
    fill(p, QColor(110, 112, 122));
    p.drawRoundedRect(QRectF(27, 34, 11, 9), 2, 2);
    fill(p, QColor(34, 34, 40));
    p.drawRoundedRect(QRectF(17, 27, 14, 4.5), 2, 2);
    QPainterPath tank(QPointF(29, 33));
    tank.quadTo(35, 23, 44, 27);
    tank.lineTo(43, 34);
    tank.closeSubpath();
    fill(p, QColor(40, 108, 222));
    p.drawPath(tank);
    fill(p, QColor(255, 240, 150));
    p.drawEllipse(QPointF(45.5, 26.5), 2.2, 2.2);
    fill(p, QColor(200, 200, 210));
    p.drawEllipse(QPointF(16, 43), 2, 2);
    p.drawEllipse(QPointF(48, 43), 2, 2);
}

void scissors(QPainter& p)
{
    const QColor steel(222, 226, 236), edge(160, 166, 180);
    p.setPen(QPen(edge, 0.8));
    p.setBrush(steel);
    QPainterPath one(QPointF(27, 43));
    one.lineTo(44, 8);
    one.quadTo(44, 14, 31, 44);
    one.closeSubpath();
    QPainterPath two(QPointF(37, 43));
    two.lineTo(20, 8);
    two.quadTo(20, 14, 33, 44);
    two.closeSubpath();
    p.drawPath(one);
    p.drawPath(two);
    outline(p, QColor(226, 56, 64), 3.4);
    p.drawEllipse(QPointF(23, 49), 6, 6);
    p.drawEllipse(QPointF(41, 49), 6, 6);
    fill(p, QColor(60, 62, 72));
    p.drawEllipse(QPointF(32, 33), 2, 2);
}

void microphone(QPainter& p)
{
    p.save();
    p.translate(30, 34);
    p.rotate(30);
    const QRectF head(-9, -25, 18, 18);
    fill(p, QColor(204, 208, 218));
    p.drawEllipse(head);
    p.save();
    QPainterPath clip;
    clip.addEllipse(head);
    p.setClipPath(clip, Qt::IntersectClip);
    outline(p, QColor(140, 146, 162), 0.8);
    for (qreal d = -9; d <= 9; d += 3) {
        p.drawLine(QPointF(d, -25), QPointF(d, -7));
        p.drawLine(QPointF(-9, d - 16), QPointF(9, d - 16));
    }
    p.restore();
    fill(p, QColor(62, 62, 72));
    p.drawRect(QRectF(-6.5, -8, 13, 3.5));
    fill(p, QColor(40, 40, 50));
    p.drawPolygon(poly({{-5.5, -4.5}, {5.5, -4.5}, {3, 22}, {-3, 22}}));
    p.restore();
    fill(p, White);
    ellipseAt(p, {50, 20}, 3, 2.3, -20);
    p.drawRect(QRectF(52, 8, 1.5, 12));
    sparkle(p, {12, 14}, 3);
}

void die(QPainter& p, QPointF centre, qreal size, qreal angle, int pips)
{
    p.save();
    p.translate(centre);
    p.rotate(angle);
    p.setPen(QPen(QColor(200, 200, 206), 1));
    p.setBrush(White);
    p.drawRoundedRect(QRectF(-size / 2, -size / 2, size, size), size * 0.18, size * 0.18);
    fill(p, QColor(190, 30, 40));
    const qreal o = size * 0.27, r = size * 0.085;
    QList<QPointF> spots;
    if (pips % 2)
        spots << QPointF(0, 0);
    if (pips >= 2)
        spots << QPointF(-o, -o) << QPointF(o, o);
    if (pips >= 4)
        spots << QPointF(o, -o) << QPointF(-o, o);
    if (pips == 6)
        spots << QPointF(-o, 0) << QPointF(o, 0);
    for (const QPointF& s : spots)
        p.drawEllipse(s, r, r);
    p.restore();
}

void dice(QPainter& p)
{
    die(p, {22, 38}, 24, -12, 5);
    die(p, {43, 25}, 21, 16, 3);
}

void compass(QPainter& p)
{
    p.setPen(QPen(QColor(122, 82, 40), 2.2));
    p.setBrush(QColor(252, 244, 222));
    p.drawEllipse(QPointF(32, 32), 21, 21);
    fill(p, QColor(150, 150, 160));
    p.drawPolygon(star({32, 32}, 12, 3, 4, 45));
    fill(p, QColor(56, 56, 76));
    p.drawPolygon(star({32, 32}, 18, 4.5, 4));
    fill(p, QColor(214, 48, 44));
    p.drawPolygon(poly({{32, 14}, {35.2, 28.8}, {32, 32}, {28.8, 28.8}}));
    fill(p, Gold);
    p.drawEllipse(QPointF(32, 32), 2, 2);
}

void filmReel(QPainter& p)
{
    QPainterPath strip(QPointF(30, 44));
    strip.cubicTo(40, 52, 48, 42, 64, 50);
    p.setBrush(Qt::NoBrush);
    p.setPen(QPen(QColor(36, 36, 42), 10, Qt::SolidLine, Qt::FlatCap));
    p.drawPath(strip);
    QPen holes(White, 7.2, Qt::CustomDashLine, Qt::FlatCap);
    holes.setDashPattern({0.25, 0.35});
    p.setPen(holes);
    p.drawPath(strip);
    p.setPen(QPen(QColor(120, 150, 190), 4.4, Qt::SolidLine, Qt::FlatCap));
    p.drawPath(strip);
    QPainterPath reel;
    reel.addEllipse(QPointF(26, 28), 18, 18);
    QPainterPath holesCut;
    for (int i = 0; i < 5; ++i)
        holesCut.addEllipse(polar({26, 28}, 9.5, -90 + i * 72), 4.6, 4.6);
    holesCut.addEllipse(QPointF(26, 28), 2.2, 2.2);
    p.setPen(QPen(QColor(120, 124, 136), 1));
    p.setBrush(QColor(214, 216, 226));
    p.drawPath(reel.subtracted(holesCut));
}

void heartHome(QPainter& p)
{
    fill(p, QColor(230, 56, 88));
    p.drawPath(heart(QRectF(8, 10, 48, 46)));
    fill(p, QColor(255, 255, 255, 90));
    ellipseAt(p, {18, 20}, 4.5, 2.6, -40);
    fill(p, White);
    p.drawPolygon(poly({{22, 33}, {32, 24}, {42, 33}}));
    p.drawRect(QRectF(25, 32, 14, 10));
    fill(p, QColor(230, 56, 88));
    p.drawRect(QRectF(30, 36, 4, 6));
}

void openBook(QPainter& p)
{
    fill(p, QColor(48, 52, 110));
    p.drawPolygon(poly({{5, 22}, {32, 27}, {59, 22}, {59, 51}, {32, 55}, {5, 51}}));
    QPainterPath page(QPointF(32, 23));
    page.cubicTo(24, 17, 14, 17, 8, 20);
    page.lineTo(8, 48);
    page.cubicTo(14, 45, 24, 45, 32, 51);
    page.closeSubpath();
    fill(p, QColor(252, 250, 242));
    p.drawPath(page);
    p.save();
    p.translate(64, 0);
    p.scale(-1, 1);
    p.drawPath(page);
    p.restore();
    outline(p, QColor(170, 172, 196), 1);
    for (qreal y = 26; y <= 42; y += 4) {
        p.drawLine(QPointF(12, y), QPointF(28, y + 1.5));
        p.drawLine(QPointF(36, y + 1.5), QPointF(52, y));
    }
    outline(p, QColor(190, 186, 170), 1);
    p.drawLine(QPointF(32, 23), QPointF(32, 51));
}

void robot(QPainter& p)
{
    const QColor metal(204, 212, 226), dark(120, 130, 150);
    p.setPen(stroke(dark, 2));
    p.drawLine(QPointF(32, 10), QPointF(32, 16));
    fill(p, QColor(236, 64, 64));
    p.drawEllipse(QPointF(32, 9), 2.6, 2.6);
    fill(p, dark);
    p.drawRoundedRect(QRectF(11, 24, 5, 11), 1.5, 1.5);
    p.drawRoundedRect(QRectF(48, 24, 5, 11), 1.5, 1.5);
    p.drawRect(QRectF(27, 41, 10, 6));
    fill(p, metal);
    p.drawRoundedRect(QRectF(15, 15, 34, 27), 6, 6);
    p.drawRoundedRect(QRectF(16, 46, 32, 18), 5, 5);
    fill(p, QColor(70, 224, 255));
    p.drawEllipse(QPointF(25, 26), 4.3, 4.3);
    p.drawEllipse(QPointF(39, 26), 4.3, 4.3);
    fill(p, QColor(20, 40, 60));
    p.drawEllipse(QPointF(25.8, 26.5), 1.8, 1.8);
    p.drawEllipse(QPointF(39.8, 26.5), 1.8, 1.8);
    fill(p, QColor(46, 50, 64));
    p.drawRoundedRect(QRectF(23, 34, 18, 4), 1.5, 1.5);
    outline(p, metal, 0.8);
    for (qreal x = 26.5; x < 40; x += 3.5)
        p.drawLine(QPointF(x, 34), QPointF(x, 38));
    fill(p, QColor(255, 200, 80));
    p.drawEllipse(QPointF(32, 53), 3, 3);
}

void soccerBall(QPainter& p)
{
    const QPointF c(32, 32);
    const qreal radius = 21;
    p.setPen(QPen(QColor(40, 40, 40), 1.5));
    p.setBrush(White);
    p.drawEllipse(c, radius, radius);
    p.save();
    QPainterPath ball;
    ball.addEllipse(c, radius, radius);
    p.setClipPath(ball, Qt::IntersectClip);
    const QPolygonF centre = regular(c, 7.5, 5);
    outline(p, QColor(40, 40, 40), 1.3);
    for (int i = 0; i < 5; ++i)
        p.drawLine(centre[i], polar(c, 15, -90 + i * 72));
    fill(p, QColor(36, 36, 40));
    p.drawPolygon(centre);
    for (int i = 0; i < 5; ++i)
        p.drawPolygon(regular(polar(c, 20, -90 + i * 72), 6.5, 5, 180 + i * 72));
    p.restore();
}

void monitor(QPainter& p)
{
    const QColor casing(228, 222, 206);
    fill(p, casing);
    p.drawRoundedRect(QRectF(9, 10, 46, 35), 4, 4);
    p.drawPolygon(poly({{27, 45}, {37, 45}, {39, 50}, {25, 50}}));
    fill(p, QColor(200, 194, 178));
    p.drawRoundedRect(QRectF(12, 51, 40, 7), 2, 2);
    fill(p, QColor(22, 40, 60));
    p.drawRoundedRect(QRectF(13, 14, 38, 26), 2, 2);
    outline(p, QColor(104, 232, 134), 1.7);
    p.drawLine(QPointF(17, 20), QPointF(33, 20));
    p.drawLine(QPointF(21, 25), QPointF(41, 25));
    p.drawLine(QPointF(21, 30), QPointF(33, 30));
    p.drawLine(QPointF(17, 35), QPointF(26, 35));
    fill(p, QColor(104, 232, 134));
    p.drawRect(QRectF(28, 33.5, 3, 3.5));
    fill(p, QColor(160, 154, 140));
    for (qreal x = 15; x < 50; x += 4.2)
        p.drawRect(QRectF(x, 53, 2.6, 1.4));
}

void riceBowl(QPainter& p)
{
    p.setPen(stroke(QColor(120, 70, 40), 2.5));
    p.drawLine(QPointF(43, 7), QPointF(31, 30));
    p.drawLine(QPointF(50, 10), QPointF(35, 31));
    fill(p, White);
    p.drawEllipse(QRectF(14, 21, 36, 18));
    p.drawEllipse(QPointF(22, 29), 6, 5);
    p.drawEllipse(QPointF(42, 29), 6, 5);
    QPainterPath bowl(QPointF(9, 32));
    bowl.lineTo(55, 32);
    bowl.cubicTo(55, 46, 45, 52, 32, 52);
    bowl.cubicTo(19, 52, 9, 46, 9, 32);
    fill(p, QColor(198, 48, 48));
    p.drawPath(bowl);
    p.drawRect(QRectF(25, 51, 14, 4));
    outline(p, QColor(255, 255, 255, 170), 1.4);
    QPainterPath band(QPointF(13, 40));
    for (int i = 0; i < 5; ++i)
        band.quadTo(16 + i * 8, 36 + (i % 2) * 8, 20 + i * 8, 40);
    p.drawPath(band);
    outline(p, QColor(160, 140, 120, 150), 1.4);
    for (qreal x : {26.0, 34.0}) {
        QPainterPath steam(QPointF(x, 19));
        steam.cubicTo(x - 3, 15, x + 3, 12, x, 8);
        p.drawPath(steam);
    }
}

void scales(QPainter& p)
{
    fill(p, Gold);
    p.drawRect(QRectF(30.5, 15, 3, 34));
    p.drawPolygon(poly({{24, 50}, {40, 50}, {37, 46}, {27, 46}}));
    p.drawRoundedRect(QRectF(19, 50, 26, 4), 1.5, 1.5);
    p.drawEllipse(QPointF(32, 13), 3, 3);
    p.setPen(stroke(Gold, 2.6));
    p.drawLine(QPointF(11, 19), QPointF(53, 19));
    p.setPen(stroke(QColor(250, 226, 150), 0.9));
    for (qreal x : {11.0, 53.0}) {
        p.drawLine(QPointF(x, 19), QPointF(x - 6.5, 34));
        p.drawLine(QPointF(x, 19), QPointF(x + 6.5, 34));
    }
    fill(p, Gold);
    p.drawChord(QRectF(3.5, 28, 15, 12), 180 * 16, 180 * 16);
    p.drawChord(QRectF(45.5, 28, 15, 12), 180 * 16, 180 * 16);
}

using Drawing = void (*)(QPainter&);

Drawing drawingOf(Motif motif)
{
    static const Drawing drawings[] = {
        house,       planet,        temple,         golfFlag,     mesa,         trumpet,
        curtains,    rocket,        capitol,        mortarboard,  trophy,       mushroom,
        briefcase,   dress,         barn,           clapperboard, dumbbell,     megaphone,
        car,         wineGlass,     musicNotes,     eiffelTower,  starPentagon, pawPrint,
        picketFence, wave,          rainLeaf,       atom,         shoppingBag,  chip,
        artPalette,  speechBubbles, electricGuitar, television,   palmIsland,   gamepad,
        torii,       pianoKeys,     stockChart,     venus,        rainbow,      mountains,
        moonStars,   motorcycle,    scissors,       microphone,   dice,         compass,
        filmReel,    heartHome,     openBook,       robot,        soccerBall,   monitor,
        riceBowl,    scales};
    static_assert(std::size(drawings) == static_cast<size_t>(Motif::Scales) + 1,
                  "one drawing for every motif");
    return drawings[static_cast<int>(motif)];
}

} // namespace

void NeighborhoodMotifs::draw(QPainter& p, Motif motif)
{
    p.save();
    drawingOf(motif)(p);
    p.restore();
}

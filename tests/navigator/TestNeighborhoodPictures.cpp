#include "navigator/NeighborhoodPictures.h"

#include <QImage>
#include <QSet>
#include <QtTest>

namespace {

QImage imageOf(bool japan, int entry)
{
    return NeighborhoodPictures::picture(japan, entry)
        .toImage()
        .convertToFormat(QImage::Format_ARGB32);
}

int differingPixels(const QImage& a, const QImage& b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += a.pixel(x, y) != b.pixel(x, y);
    return count;
}

} // namespace

class TestNeighborhoodPictures : public QObject
{
    Q_OBJECT

private slots:
    void eachSiteHasTheGeneralPictureAndOnePerBuiltInNeighborhood()
    {
        QCOMPARE(NeighborhoodPictures::usaCount(), 42);
        QCOMPARE(NeighborhoodPictures::japanCount(), 15);
    }

    void everyPictureIsADrawnTileOfTheSameSize()
    {
        const QSizeF size(NeighborhoodPictures::Size, NeighborhoodPictures::Size);
        for (bool japan : {false, true}) {
            const int count =
                japan ? NeighborhoodPictures::japanCount() : NeighborhoodPictures::usaCount();
            for (int entry = 1; entry <= count; ++entry) {
                const QString which = QStringLiteral("%1 %2").arg(japan).arg(entry);
                const QPixmap pixmap = NeighborhoodPictures::picture(japan, entry);
                QVERIFY2(!pixmap.isNull(), qPrintable(which));
                QCOMPARE(pixmap.deviceIndependentSize(), size);
                const QImage image = imageOf(japan, entry);
                // Rounded corners, a solid middle and a real drawing on it.
                QCOMPARE(qAlpha(image.pixel(0, 0)), 0);
                QCOMPARE(qAlpha(image.pixel(image.width() / 2, image.height() / 2)), 255);
                QSet<QRgb> colours;
                for (int y = 0; y < image.height(); y += 2)
                    for (int x = 0; x < image.width(); x += 2)
                        colours.insert(image.pixel(x, y));
                QVERIFY2(colours.size() > 40, qPrintable(which));
                // The background alone is the same along a row: the drawing
                // makes some row of the middle vary.
                bool drawn = false;
                const int from = image.width() / 8, to = image.width() - from;
                for (int y = from; y < to && !drawn; ++y) {
                    QSet<QRgb> row;
                    for (int x = from; x < to; ++x)
                        row.insert(image.pixel(x, y));
                    drawn = row.size() > 3;
                }
                QVERIFY2(drawn, qPrintable(which));
            }
        }
    }

    void noTwoPicturesLookAlike()
    {
        QList<QImage> all;
        for (int entry = 1; entry <= NeighborhoodPictures::usaCount(); ++entry)
            all << imageOf(false, entry);
        for (int entry = 1; entry <= NeighborhoodPictures::japanCount(); ++entry)
            all << imageOf(true, entry);
        const int tenth = all.first().width() * all.first().height() / 10;
        for (int i = 0; i < all.size(); ++i)
            for (int j = i + 1; j < all.size(); ++j)
                QVERIFY2(differingPixels(all[i], all[j]) > tenth,
                         qPrintable(QStringLiteral("pictures %1 and %2").arg(i).arg(j)));
    }

    void anEntryOutsideTheListGivesTheGeneralPicture()
    {
        for (bool japan : {false, true}) {
            const int count =
                japan ? NeighborhoodPictures::japanCount() : NeighborhoodPictures::usaCount();
            const QImage general = imageOf(japan, 1);
            for (int entry : {0, -1, count + 1, 100})
                QCOMPARE(imageOf(japan, entry), general);
            QVERIFY(imageOf(japan, count) != general);
        }
    }

    void aPictureIsDrawnOnlyOnce()
    {
        const QPixmap first = NeighborhoodPictures::picture(false, 7);
        QCOMPARE(NeighborhoodPictures::picture(false, 7).cacheKey(), first.cacheKey());
        QVERIFY(NeighborhoodPictures::picture(true, 7).cacheKey() != first.cacheKey());
    }
};

QTEST_MAIN(TestNeighborhoodPictures)
#include "TestNeighborhoodPictures.moc"

#include "NavigatorRig.h"

#include <QRegularExpression>
#include <QtTest>

namespace {
// A clock that stands still: every draw is reseeded with the same time.
QString frozenClock()
{
    return QStringLiteral("9:15:32 PM");
}

void addMisc(NavigatorRig& r, const QString& table, const QStringList& names)
{
    QVector<QStringList> rows;
    for (const QString& n : names)
        rows << QStringList{n};
    r.t.db.append(table, {table == "UsaMisc" ? "RNavNeighborhoodsUSA" : "RNavNeighborhoodsJapan"},
                  rows);
}

// A generator that gives the listed texts in turn, then a fixed one.
std::shared_ptr<QStringList> script(Wander& w, const QStringList& values)
{
    auto queue = std::make_shared<QStringList>(values);
    w.randomValue = [queue](double) {
        return queue->isEmpty() ? QStringLiteral("12009") : queue->takeFirst();
    };
    return queue;
}

// The Neighborhood and Suburb of a composed USA or Japan address.
QStringList partsOf(const QString& url)
{
    static const QRegularExpression form(QStringLiteral(
        "^http://www\\.geocities\\.(?:com|co\\.jp)/([^/-]+)(?:[/-]([^/]+))?/(\\d{4})/$"));
    const auto m = form.match(url);
    return m.hasMatch() ? QStringList{m.captured(1), m.captured(2), m.captured(3)} : QStringList();
}
} // namespace

class TestWander : public QObject
{
    Q_OBJECT

private slots:
    void drawsAreValidHouseNumbers()
    {
        NavigatorRig r;
        Wander& w = r.nav.wander();
        QSet<QString> seen;
        for (int i = 0; i < 2000; ++i) {
            const QString d = w.RandomDigits();
            QVERIFY2(QRegularExpression("^[1-9][0-9]{3}$").match(d).hasMatch(), qPrintable(d));
            seen << d;
        }
        QVERIFY(seen.size() > 1000); // no short cycles
        // A clock that does not move still gives different draws.
        w.timeOfDay = frozenClock;
        QSet<QString> frozen;
        for (int i = 0; i < 50; ++i)
            frozen << w.RandomDigits();
        QVERIFY(frozen.size() > 40);
    }

    void randNavOpensRandomAddressesThroughTheComposer()
    {
        NavigatorRig r;
        r.start();
        r.c.mnuRandNav.click();
        QVERIFY(r.c.mnuRandNav.isChecked());
        for (int i = 0; i < 200; ++i)
            r.nav.RandNavStep();
        const QStringList opened = r.host.navigated();
        QCOMPARE(opened.size(), 201);
        QSet<QString> neighborhoods;
        for (const QString& url : opened) {
            const QStringList parts = partsOf(url);
            QVERIFY2(!parts.isEmpty(), qPrintable(url));
            const int i = r.t.state.catalogue.find(parts[0]);
            QVERIFY2(i > 0, qPrintable(url));
            neighborhoods << parts[0];
            if (!parts[1].isEmpty()) {
                bool found = false;
                for (int s = 1; s <= r.t.state.catalogue.gaintSuburbCount[i]; ++s)
                    found = found || r.t.state.catalogue.suburb(i, s) == parts[1];
                QVERIFY2(found, qPrintable(url));
            }
        }
        QVERIFY(neighborhoods.size() > 20);
        // The composer shows the last jump.
        QCOMPARE("http://www." + r.c.txtFullAddress.text(), opened.last());
        QCOMPARE(r.c.lblComment.text(),
                 r.t.state.catalogue.gastrDescription[r.composer.CurrentNeighborhood]);
    }

    // The digits of the generator's texts are gathered, the point, sign and
    // leading zero dropped, the exponent's digits kept.
    void drawsGatherTheDigitsOfTheGeneratorsTexts()
    {
        struct Case
        {
            QStringList values;
            QString digits;
        };
        const QList<Case> cases = {
            {{"12345"}, "1234"},
            {{"1234", "5"}, "1234"}, // four digits are not yet enough
            {{"1.5E-05", "9"}, "1505"},
            // A leading zero waits; past 20 digits six from the fifth stay.
            {{"0.1234567", "0.7654321", "0.5555555"}, "4567"},
        };
        for (const Case& c : cases) {
            NavigatorRig r;
            auto left = script(r.nav.wander(), c.values);
            QCOMPARE(r.nav.wander().RandomDigits(), c.digits);
            QVERIFY(left->isEmpty());
        }
    }

    // Neighborhood: the first pair before the second, each only if it is
    // in the catalogue (or, with a selection, in the selection's order).
    // Suburb: the right pair before the left. House: one more draw.
    void randNavPrefersItsPairsAsDescribed()
    {
        NavigatorRig r;
        r.start();
        const CatalogueData& cat = r.t.state.catalogue;
        QVERIFY(cat.gaintSuburbCount[12] >= 2);
        // A draw never begins with 0, so the left pair names a Suburb only
        // where there are ten or more.
        int big = 10;
        while (big <= cat.gintNeighborhoodCount && cat.gaintSuburbCount[big] < 10)
            ++big;
        QVERIFY(big <= cat.gintNeighborhoodCount);
        const QString k = QString::number(big);
        struct Case
        {
            QVector<qint16> selection;
            QStringList draws;
            int neighborhood;
            int suburb;
        };
        const QList<Case> cases = {
            {{}, {"12059", "10029", "43219"}, 12, 2},
            {{}, {"73" + k + "9", "10999", "43219"}, big, 10},
            {{}, {"99999", "12059", "10019", "43219"}, 12, 1},
            {{7, 30}, {"30079", "10009", "43219"}, 7, 0},
            {{30, 7}, {"30079", "10009", "43219"}, 30, 0},
        };
        for (const Case& c : cases) {
            r.nav.wander().RandNavSelection = c.selection;
            auto left = script(r.nav.wander(), c.draws);
            r.nav.RandNavStep();
            QVERIFY(left->isEmpty());
            const QString suburb = c.suburb ? cat.suburb(c.neighborhood, c.suburb) : QString();
            QCOMPARE(partsOf(r.host.navigated().last()),
                     (QStringList{cat.name(c.neighborhood), suburb, "4321"}));
            QCOMPARE(r.c.picNeighborhood.entry(), c.neighborhood + 1);
            QCOMPARE(r.c.picNeighborhood.japanList(), false);
        }

        // On the Japan site the second pair shows the USA picture list; the
        // Neighborhood list's Change puts the region's own back, so this
        // shows where the jump stays in the same Neighborhood.
        r.c.mnuJapan.click();
        r.pickNeighborhood(cat.name(5));
        r.nav.wander().RandNavSelection.clear();
        script(r.nav.wander(), {"73059", "10009", "43219"});
        r.nav.RandNavStep();
        QCOMPARE(r.c.picNeighborhood.japanList(), false);
        QCOMPARE(r.c.picNeighborhood.entry(), 6);
        script(r.nav.wander(), {"12739", "10009", "43219"});
        r.nav.RandNavStep();
        QCOMPARE(r.c.picNeighborhood.japanList(), true);
        QCOMPARE(r.c.picNeighborhood.entry(), 13);
    }

    void withoutAssignRtcTheControlsStayAsTheyWere()
    {
        NavigatorRig r;
        r.start();
        r.t.state.gblnAssignRTC = false;
        r.pickNeighborhood("SoHo");
        const QString before = r.c.txtFullAddress.text();
        r.c.mnuRandNav.click();
        r.nav.RandNavStep();
        QCOMPARE(r.c.txtFullAddress.text(), before);
        QCOMPARE(r.c.cmbNeighborhood.text(), QString("SoHo"));
        QCOMPARE(r.host.navigated().size(), 2);
        QVERIFY(!partsOf(r.host.navigated().last()).isEmpty());
    }

    void aStoredSelectionLimitsTheJumps()
    {
        NavigatorRig r;
        r.start();
        addMisc(r, "UsaMisc", {"Broadway", "Gone Neighborhood", "Yosemite"});
        r.t.state.gblnUsaRNS = true;
        r.c.mnuRandNav.click();
        QCOMPARE(r.nav.wander().RandNavSelection, (QVector<qint16>{6, 41}));
        for (int i = 0; i < 30; ++i)
            r.nav.RandNavStep();
        for (const QString& url : r.host.navigated()) {
            const QString n = partsOf(url).value(0);
            QVERIFY2(n == "Broadway" || n == "Yosemite", qPrintable(url));
        }
    }

    void theJapanSiteUsesItsOwnTableWhicheverFlagIsSet()
    {
        NavigatorRig r;
        r.start();
        r.nav.JapanClick();
        addMisc(r, "JapanMisc", {"MotorCity"});
        r.t.state.gblnUsaRNS = true; // the region on show decides the table
        r.c.mnuRandNav.click();
        QCOMPARE(r.nav.wander().RandNavSelection, QVector<qint16>{2});
        // A Neighborhood without Suburbs comes up without one.
        for (int i = 0; i < 5; ++i)
            r.nav.RandNavStep();
        for (const QString& url : r.host.navigated()) {
            QVERIFY2(url.startsWith("http://www.geocities.co.jp/MotorCity/"), qPrintable(url));
            QCOMPARE(partsOf(url).value(1), QString());
        }
    }

    void theModesExcludeEachOther()
    {
        NavigatorRig r;
        r.start();
        r.t.state.gblnUsaRNS = true; // with an empty selection table: all
        r.c.mnuAutoNav.click();
        r.c.mnuRandNav.click();
        QVERIFY(r.c.mnuRandNav.isChecked() && !r.c.mnuAutoNav.isChecked());
        QVERIFY(r.nav.wander().RandNavSelection.isEmpty());
        r.c.mnuAutoNav.click();
        QVERIFY(r.c.mnuAutoNav.isChecked() && !r.c.mnuRandNav.isChecked());
        QVERIFY(r.nav.wander().RandNavSelection.isEmpty());
        r.nav.StopAutoModes();
        QCOMPARE(r.nav.wander().mode(), Wander::Mode::Off);
    }

    void autoNavGoesOnFrom9999To1000()
    {
        NavigatorRig r;
        r.start();
        r.pickDigits("99", "98");
        r.c.mnuAutoNav.click();
        QCOMPARE(r.host.navigated().last(), QString("http://www.geocities.com/Area51/9999/"));
        const int opened = r.host.navigated().size();
        r.nav.wander().tmrAN.setInterval(1);
        r.nav.wander().tmrAN.start();
        QTRY_VERIFY(r.host.navigated().size() > opened);
        r.nav.wander().tmrAN.stop();
        QCOMPARE(r.host.navigated().at(opened), QString("http://www.geocities.com/Area51/1000/"));
    }

    void prevDuringRandNavStepsDownAndTheWalkGoesOn()
    {
        NavigatorRig r;
        r.start();
        r.c.mnuRandNav.click();
        const QString house = r.composer.HouseNumber;
        r.c.cmdPrevious.click();
        QVERIFY(r.c.mnuRandNav.isChecked());
        const int expected = house.toInt() == 1000 ? 9999 : house.toInt() - 1;
        QCOMPARE(r.composer.HouseNumber, QString::number(expected));
    }

    void aLostConnectionEndsTheWalkAtTheNextTick()
    {
        NavigatorRig r;
        r.start();
        r.c.mnuAutoNav.click();
        const int opened = r.host.navigated().size();
        r.t.probe.up = false;
        r.nav.wander().tmrAN.setInterval(1);
        r.nav.wander().tmrAN.start();
        QTRY_VERIFY(!r.c.mnuAutoNav.isChecked());
        QVERIFY(!r.nav.wander().tmrAN.isActive());
        QCOMPARE(r.host.navigated().size(), opened);
        QVERIFY(r.t.prompts.shown.isEmpty()); // silently
    }

    void withoutTheWaitATickStopsTheLoadFirst()
    {
        NavigatorRig r;
        r.start();
        r.t.state.gblnFullPages = false;
        r.c.mnuAutoNav.click();
        r.host.calls.clear();
        r.nav.wander().tmrAN.setInterval(1);
        r.nav.wander().tmrAN.start();
        QTRY_VERIFY(!r.host.navigated().isEmpty());
        QCOMPARE(r.host.calls.first(), QString("stop"));
    }
};

QTEST_GUILESS_MAIN(TestWander)
#include "TestWander.moc"

#include "NavigatorRig.h"

#include <QtTest>

void NavigatorRig::start()
{
    t.createAndOpenDatabase();
    nav.Load();
    nav.LoadCatalogue();
}

static void pick(ListControl& list, const QString& text)
{
    const int index = list.items().indexOf(text);
    QVERIFY2(index >= 0, qPrintable(text + " is not in " + list.name()));
    list.userSelect(index);
}

void NavigatorRig::pickNeighborhood(const QString& name)
{
    pick(c.cmbNeighborhood, name);
}
void NavigatorRig::pickSuburb(const QString& name)
{
    pick(c.cmbSuburb, name);
}

void NavigatorRig::pickDigits(const QString& prefix, const QString& suffix)
{
    pick(c.cmbHouseNumberPrefix, prefix);
    pick(c.cmbHouseNumberSuffix, suffix);
}

// The import of old links at the size the old program allowed: 1001 links
// in a text file into a table that holds half of them already, and an
// Access file with 1001 links and 1000 Browser Two links.
#include "ImportRig.h"
#include "JetWriter.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <algorithm>
#include <cstdio>

namespace {

QStringList link(int i)
{
    return {"SoHo", "Lofts", QString::number(1000 + i), "Note " + QString::number(i),
            "Saved on: Date = 1/2/1999 Time = 9:15PM"};
}

double importText()
{
    ImportRig r;
    QByteArray text;
    for (int i = 0; i < 1001; ++i) {
        const QStringList l = link(i);
        text += "\"" + l[0].toUtf8() + "\",\"" + l[1].toUtf8() + "\",\"" + l[2].left(2).toUtf8() +
                "\",\"" + l[2].mid(2).toUtf8() + "\",\"" + l[3].toUtf8() + "\",\"" + l[4].toUtf8() +
                "\"\r\n";
        if (i % 2 == 0)
            r.addSaved(Tbl::UsaSaved, l);
    }
    const QString path = r.write("geolinks.ini", text);
    QElapsedTimer clock;
    clock.start();
    r.run({path});
    const double ms = clock.nsecsElapsed() / 1e6;
    if (r.rows(Tbl::UsaSaved).size() != 1001)
        std::printf("  the text file was not imported whole\n");
    return ms;
}

double importAccess()
{
    ImportRig r;
    JetWriter w = JetWriter::OldMainDatabase();
    for (int i = 0; i < 1001; ++i)
        w.table("UsaSaved")->rows.append(link(i));
    for (int i = 0; i < 1000; ++i)
        w.table("wbtlinks")->rows.append({"http://host/" + QString::number(i), "c"});
    w.write(r.files + "/geodata.mdb");
    QElapsedTimer clock;
    clock.start();
    r.run({r.files + "/geodata.mdb"});
    const double ms = clock.nsecsElapsed() / 1e6;
    // Counted, so that a refused file does not pass for a fast one.
    if (r.rows(Tbl::UsaSaved).size() != 1001 || r.rows(Tbl::WbtLinks).size() != 1000)
        std::printf("  the Access file was not imported whole\n");
    return ms;
}

void report(const char* what, QVector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("  %-44s median %6.1f ms, worst %6.1f ms\n", what, times[times.size() / 2],
                times.last());
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const int rounds = 5;
    QVector<double> text, access;
    for (int i = 0; i < rounds; ++i) {
        text << importText();
        access << importAccess();
    }
    std::printf("link import (%d rounds)\n", rounds);
    report("geolinks.ini, 1001 links, half repeats", text);
    report("geodata.mdb, 1001 links, 1000 WBTwo links", access);
    return 0;
}

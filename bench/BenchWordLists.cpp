// Browser Two's word sources: reading a text source of 9,998 words and
// loading a stored list of 9,998 words; median and worst of several rounds.
#include "WordListRig.h"
#include "core/SettingsKeys.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <cstdio>

namespace {

void report(const char* what, QVector<double> times)
{
    std::sort(times.begin(), times.end());
    std::printf("  %-36s median %6.1f ms, worst %6.1f ms\n", what, times[times.size() / 2],
                times.last());
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication app(argc, argv);
    const int rounds = 20;
    const QStringList words = numberedWords(9998, QStringLiteral("member"));
    WordListRig r;
    const QString file = r.t.folders.root() + QStringLiteral("/words.txt");
    putFile(file, words.join(QStringLiteral("\r\n")).toLatin1());
    r.t.ctx.SaveSetting(Sect::WebBrwsrTwo, Key::WBT_InPutFile, file);
    r.setSites(words);
    r.dialogs.names = QStringList{QStringLiteral("big")};
    if (!r.lists->CreateWordListDb())
        return 1;

    QVector<double> text, stored;
    for (int i = 0; i < rounds; ++i) {
        QElapsedTimer clock;
        clock.start();
        if (!r.lists->PickWordSource(QString()) || r.t.state.gstrSites.size() != 9999)
            return 1;
        text << clock.nsecsElapsed() / 1e6;
        clock.restart();
        if (!r.lists->LoadWordList(QStringLiteral("big")) || r.t.state.gstrSites.size() != 9999)
            return 1;
        stored << clock.nsecsElapsed() / 1e6;
    }
    std::printf("word lists (%d rounds, 9,998 words)\n", rounds);
    report("read a text word source", text);
    report("load a stored word list", stored);

    // A huge source with no word in it is read to its end.
    const QByteArray item("longlonglonglonglonglong,\r\n");
    QFile huge(file);
    if (!huge.open(QIODevice::WriteOnly | QIODevice::Truncate))
        return 1;
    const QByteArray block = item.repeated((1 << 20) / item.size());
    for (int i = 0; i < 256; ++i)
        huge.write(block);
    huge.close();
    QElapsedTimer clock;
    clock.start();
    if (!r.lists->PickWordSource(QString()) || r.t.state.gstrSites.size() != 1)
        return 1;
    std::printf("  read a 256 MB source without a word  %6.0f ms\n", clock.nsecsElapsed() / 1e6);
    return 0;
}

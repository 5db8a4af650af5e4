#include "cache/EmailScanner.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

// Every address of one text, as the action asks for them.
QByteArrayList harvest(EmailScanner& scanner, const QByteArray& text)
{
    QByteArrayList found;
    QByteArray address;
    scanner.NextEmailAddress(text, address);
    while (!address.isEmpty() && found.size() < 10000) {
        found << address;
        scanner.NextEmailAddress(QByteArray(), address);
    }
    return found;
}

QByteArrayList harvest(const QByteArray& text)
{
    EmailScanner scanner;
    return harvest(scanner, text);
}

// Texts made of the pieces that move the scanner, with stretches of filler
// between them long enough for the skips to matter.
QByteArray randomText(QRandomGenerator& random)
{
    static const QByteArrayList pieces = {
        "mailto:", "MAILTO:", "mmailto:", "ma ",      "</a>", "</A>", "<a href=\"",
        "\">",     ">",       "\"",       ",",        "@",    ".com", " ",
        "\n",      "\t",      "bob",      "x@y.net ", "m",    "<",    "/",
        "a",       ":",       "?",        "#",        "(",    "-",    "."};
    QByteArray text;
    const int count = random.bounded(1, 60);
    for (int i = 0; i < count; ++i) {
        if (random.bounded(8) == 0)
            text += QByteArray(random.bounded(1, 300), "qwzkv"[random.bounded(5)]);
        text += pieces[random.bounded(pieces.size())];
    }
    return text;
}

} // namespace

class TestEmailScanner : public QObject
{
    Q_OBJECT

private slots:
    void addresses_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArrayList>("expected");

        QTest::newRow("subject after ?")
            << QByteArray("<a href=\"mailto:bob@x.com?subject=hi\">bob</a>")
            << QByteArrayList{"bob@x.com"};
        QTest::newRow("no quotes")
            << QByteArray("<a href=mailto:bob@x.com>bob</a>") << QByteArrayList{"bob@x.com"};
        QTest::newRow("two targets, comma")
            << QByteArray("<a href=\"mailto:a@x.com,b@y.com\">ab</a>") << QByteArrayList{"a@x.com"};
        // The link count runs on through the call, so the next link's ":"
        // is no longer the first character and joins its buffer.
        QTest::newRow("no > before </a>, scan goes on")
            << QByteArray("mailto:bob@x.com</a> <a href=\"mailto:c@d.com\">c</a>")
            << QByteArrayList{":c@d.com"};
        QTest::newRow("long link under the limit")
            << QByteArray("<a href=\"mailto:" + QByteArray(850, 'x') + "@x.com\">x</a>")
            << QByteArrayList{QByteArray(850, 'x') + "@x.com"};
        QTest::newRow("link of 900")
            << QByteArray("<a href=\"mailto:" + QByteArray(900, 'x') + "@x.com\">x</a>")
            << QByteArrayList{};
        QTest::newRow("second mailto inside the first")
            << QByteArray("<a href=\"mailto:a@x.com\">x <a href=\"mailto:b@y.com\">y</a>")
            << QByteArrayList{"a@x.com"};
        QTest::newRow("each link, twice the same")
            << QByteArray("<a href=\"mailto:a@x.com\">x</a><a href=\"mailto:a@x.com\">y</a>")
            << QByteArrayList{"a@x.com", "a@x.com"};
        QTest::newRow("any text of a link passes")
            << QByteArray("<a href=\"mailto:/just text/\">y</a>") << QByteArrayList{"just"};
        QTest::newRow("doubled first letter")
            << QByteArray("<a href=\"mmailto:a@x.com\">a</a> <a href=\"mailto:b@y.com\">b</a>")
            << QByteArrayList{"b@y.com"};
        QTest::newRow("unfinished run before it")
            << QByteArray("<a href=\"ma mailto:b@y.com\">b</a>") << QByteArrayList{};

        QTest::newRow("plain") << QByteArray("mail me at bob@x.com now")
                               << QByteArrayList{"bob@x.com"};
        QTest::newRow("plain at the very end")
            << QByteArray("mail me at bob@x.com") << QByteArrayList{};
        QTest::newRow("plain behind a line break")
            << QByteArray("mail me\nbob@x.com now") << QByteArrayList{};
        QTest::newRow("plain behind >") << QByteArray("<b>bob@x.com </b>") << QByteArrayList{};
        QTest::newRow("plain behind :") << QByteArray("mail:bob@x.com now") << QByteArrayList{};
        QTest::newRow("dot before @") << QByteArray("write b.ob@x.com now") << QByteArrayList{};
        QTest::newRow("hyphen before @") << QByteArray("write b-ob@x.com now") << QByteArrayList{};
        QTest::newRow("hyphen after @")
            << QByteArray("write bob@my-site.com now") << QByteArrayList{};
        QTest::newRow("suffix in mid-name") << QByteArray("write bob@mail.com.example.org now")
                                            << QByteArrayList{"bob@mail.com.example.org"};
        QTest::newRow("no suffix")
            << QByteArray("write bob@mail.example.org now") << QByteArrayList{};
        QTest::newRow("six characters") << QByteArray("x a@b.se y") << QByteArrayList{};
        QTest::newRow("seven characters") << QByteArray("x ab@b.se y") << QByteArrayList{"ab@b.se"};
        QTest::newRow("blank more than 40 on")
            << QByteArray("x " + QByteArray(36, 'b') + "@x.com y") << QByteArrayList{};
        QTest::newRow("only the first @") << QByteArray("x a@b y bob@x.com z") << QByteArrayList{};
        QTest::newRow("links first, then plain")
            << QByteArray("see bob@y.net <a href=\"mailto:a@x.com\">a</a>")
            << QByteArrayList{"a@x.com", "bob@y.net"};
        QTest::newRow("plain lost to a link's @")
            << QByteArray("<a href=\"mailto:a@x.com\">a</a> see bob@y.net ")
            << QByteArrayList{"a@x.com"};
        QTest::newRow("nothing") << QByteArray("no address here") << QByteArrayList{};
    }
    void addresses()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArrayList, expected);
        QCOMPARE(harvest(text), expected);
    }

    // One scanner serves file after file: an answer of nothing leaves it
    // reset, also after a text that ended inside a link.
    void stateBetweenTexts()
    {
        EmailScanner scanner;
        QCOMPARE(harvest(scanner, "<a href=\"mailto:open@x.com\">never closed"), QByteArrayList{});
        QCOMPARE(harvest(scanner, "<a href=\"mailto:b@y.com\">b</a>"), QByteArrayList{"b@y.com"});
        QByteArray address = "stale";
        scanner.NextEmailAddress(QByteArray(), address);
        QCOMPARE(address, QByteArray());
    }

    // The skips over characters that cannot change the state answer the
    // same as the walk through every character, wherever the pieces fall.
    void skipsAnswerAsEveryCharacter()
    {
        QRandomGenerator random(20260101);
        int found = 0;
        for (int round = 0; round < 4000; ++round) {
            const QByteArray text = randomText(random);
            EmailScanner every;
            every.setEveryCharacter(true);
            const QByteArrayList expected = harvest(every, text);
            found += int(expected.size());
            EmailScanner fast;
            QCOMPARE(harvest(fast, text), expected);
        }
        QVERIFY(found > 100); // the texts did hold addresses
    }
};

QTEST_GUILESS_MAIN(TestEmailScanner)
#include "TestEmailScanner.moc"

#pragma once

#include <QByteArray>

// The harvester behind "Find Email": hands out the addresses of one text a
// call at a time, first the target of each "mailto:" link, then at most one
// address written as plain text. Its state lives between calls. It works on
// the bytes of the single-byte text.
class EmailScanner
{
public:
    // With a text a new scan starts; with an empty one the scan goes on.
    // result is the next address, or empty when there is none left, and a
    // call that answers empty has reset the scanner.
    void NextEmailAddress(const QByteArray& text, QByteArray& result);

    // Walks every character through the matchers, without the skips over
    // characters that cannot change the state; the answers are the same,
    // which the tests compare.
    void setEveryCharacter(bool on) { m_everyCharacter = on; }

private:
    struct Tag;

    void reset();
    void matchTag(char c, const Tag& tag, qint16& next, qint16& matched);
    bool scanLinks(QByteArray& result);
    void step(char c, int& linkCount, QByteArray& buffer);
    qint32 skipToFirstLetter(qint32 pos);
    qint32 skipInsideLink(qint32 pos, int& linkCount, QByteArray& buffer);
    QByteArray plainAddress() const;
    QByteArray candidateAt(qsizetype blank, bool& stop) const;

    QByteArray ScanText;
    qint32 ScanLength = 0;
    qint32 ScanPos = 1;
    qint16 LinkPhase = 4;
    qint16 OpenGate = 0;
    bool LinkClosed = false;
    qint16 FoundCount = 0;
    qint16 OpenNext = 0;
    qint16 OpenMatched = 0;
    qint16 CloseNext = 0;
    qint16 CloseMatched = 0;

    bool m_everyCharacter = false;
    bool m_found = false; // set by step() when a link gave its address
    QByteArray m_address;
    qint32 m_nextCapital = 0; // position of the next "M", past the end when none
};

#include "EmailScanner.h"

#include "CacheText.h"

#include <cstring>
#include <limits>

struct EmailScanner::Tag
{
    const char* text;
    qint16 length;
    bool opening; // "mailto:" rather than "</a>"
};

namespace {

const char* const Suffixes[] = {".com", ".net", ".edu", ".gov", ".ca",
                                ".au",  ".se",  ".jp",  ".uk",  ".de"};
constexpr int LinkLimit = 900;
// The buffer only counts while a link stays under the limit, so a link that
// never closes need not be held whole.
constexpr qsizetype BufferCap = LinkLimit + 64;
constexpr qsizetype CandidateWalk = 40;

bool leftStop(unsigned char c)
{
    return c <= 31 || (c >= 33 && c <= 47) || (c >= 58 && c <= 63);
}

bool rightStop(unsigned char c)
{
    return c != '.' && leftStop(c);
}

void cutBefore(QByteArray& text, char mark)
{
    const qsizetype at = text.indexOf(mark);
    if (at >= 0)
        text.truncate(at);
}

void trimSlashes(QByteArray& text)
{
    if (text.endsWith('/'))
        text.chop(1);
    if (text.startsWith('/'))
        text.remove(0, 1);
}

} // namespace

void EmailScanner::reset()
{
    ScanText.clear();
    LinkClosed = false;
    LinkPhase = 4;
    FoundCount = 0;
    ScanLength = 0;
    ScanPos = 1;
    OpenGate = CloseMatched = OpenMatched = OpenNext = CloseNext = 0;
}

void EmailScanner::NextEmailAddress(const QByteArray& text, QByteArray& result)
{
    result.clear();
    if (!text.isEmpty()) {
        LinkClosed = false;
        ScanPos = 1;
        ScanText = text;
        LinkPhase = 4;
        ScanLength = qint32(text.size());
        m_nextCapital = 0;
    } else if (FoundCount == 0) {
        reset();
        return;
    }
    if (scanLinks(result))
        return;
    result = plainAddress();
    reset();
}

// One tag's matcher on one character. A run, once begun by the first
// letter, advances at every character; a wrong letter ends it only when a
// letter of the tag comes, and the first letter met within a run does not
// start a new one.
void EmailScanner::matchTag(char c, const Tag& tag, qint16& next, qint16& matched)
{
    for (qint16 j = 1; j <= tag.length; ++j) {
        if (c == tag.text[0]) {
            if (next == 0)
                next = matched = 1;
            continue;
        }
        if (c != tag.text[j - 1])
            continue;
        if (matched == j - 1 && next == j)
            matched = j;
        else
            next = matched = 0;
        if (!tag.opening && next == tag.length) {
            LinkPhase = 0;
            OpenMatched = OpenNext = CloseNext = 0;
        } else if (tag.opening && j == tag.length && matched == j) {
            LinkPhase = 1;
            OpenNext = CloseMatched = CloseNext = 0;
        }
    }
    if (next >= 1)
        ++next;
}

void EmailScanner::step(char c, int& linkCount, QByteArray& buffer)
{
    static const Tag Open{"mailto:", 7, true};
    static const Tag Close{"</a>", 4, false};
    c = CacheText::lowerByte(c);
    if (OpenGate == 0)
        OpenGate = 1;
    else if (OpenMatched == Open.length)
        OpenGate = 3;
    if (c == ',' || (c >= 1 && c <= 31))
        c = ' ';
    if (OpenMatched == Open.length)
        matchTag(c, Close, CloseNext, CloseMatched);
    if (CloseMatched == Close.length || OpenGate == 1)
        matchTag(c, Open, OpenNext, OpenMatched);
    if (LinkPhase == 1) {
        const bool quote = c == '"';
        if (quote)
            --linkCount;
        if (linkCount > 0) {
            if (!quote && buffer.size() < BufferCap)
                buffer += c;
            LinkClosed = false;
        }
        ++linkCount;
    }
    if (LinkPhase != 0 || LinkClosed)
        return;
    if (linkCount < LinkLimit) {
        buffer += c;
        const qsizetype close = QByteArrayView(buffer).chopped(1).indexOf('>');
        if (close >= 0) {
            m_address = buffer.left(close);
            m_found = true;
            return;
        }
    }
    buffer.clear();
    LinkClosed = true;
}

// Outside a link, with no run of "mailto:" begun and no link waiting to be
// judged, only an "m" can change the state: the characters before it are
// passed over.
qint32 EmailScanner::skipToFirstLetter(qint32 pos)
{
    const bool searching = OpenGate != 0 && OpenMatched == 0 && OpenNext == 0 && LinkPhase != 1 &&
                           !(LinkPhase == 0 && !LinkClosed) && (CloseMatched == 4 || OpenGate == 1);
    if (!searching)
        return pos;
    // The next capital is looked up again only once it is passed: a text
    // without one is searched for it once, not at every "m".
    if (m_nextCapital < pos) {
        const void* capital =
            std::memchr(ScanText.constData() + (pos - 1), 'M', size_t(ScanLength - pos + 1));
        m_nextCapital = capital
                            ? qint32(static_cast<const char*>(capital) - ScanText.constData()) + 1
                            : ScanLength + 1;
    }
    const void* small =
        std::memchr(ScanText.constData() + (pos - 1), 'm', size_t(m_nextCapital - pos));
    return small ? qint32(static_cast<const char*>(small) - ScanText.constData()) + 1
                 : m_nextCapital;
}

// Inside a link, with no run of "</a>" begun, every character up to the
// next "<" only joins the buffer and counts.
qint32 EmailScanner::skipInsideLink(qint32 pos, int& linkCount, QByteArray& buffer)
{
    if (LinkPhase != 1 || OpenMatched != 7 || CloseNext != 0 || OpenGate != 3 || CloseMatched == 4)
        return pos;
    const char* text = ScanText.constData();
    for (; pos <= ScanLength && text[pos - 1] != '<'; ++pos) {
        char c = text[pos - 1];
        if (c == '"')
            continue; // dropped, and the count stays
        if (c == ',' || (c >= 1 && c <= 31))
            c = ' ';
        if (linkCount > 0) {
            if (buffer.size() < BufferCap)
                buffer += CacheText::lowerByte(c);
            LinkClosed = false;
        }
        ++linkCount;
    }
    return pos;
}

bool EmailScanner::scanLinks(QByteArray& result)
{
    int linkCount = 0;
    QByteArray buffer;
    m_found = false;
    for (qint32 p = ScanPos; p <= ScanLength; ++p) {
        if (!m_everyCharacter) {
            p = skipToFirstLetter(p);
            p = skipInsideLink(p, linkCount, buffer);
            if (p > ScanLength)
                break;
        }
        step(ScanText[p - 1], linkCount, buffer);
        if (!m_found)
            continue;
        for (char mark : {'"', '?', ' ', '#', '(', '?'})
            cutBefore(m_address, mark);
        trimSlashes(m_address);
        result = m_address;
        // At the top of its 16 bits the count's rise fails and is passed
        // over: it stays there rather than wrapping to 0, which would end
        // the scan.
        if (FoundCount < std::numeric_limits<qint16>::max())
            ++FoundCount;
        ScanPos = p;
        return true;
    }
    return false;
}

// The text right of the blank at index blank, up to its next blank within
// forty characters; stop is set when a character that no address holds
// comes first.
QByteArray EmailScanner::candidateAt(qsizetype blank, bool& stop) const
{
    const QByteArrayView rest = QByteArrayView(ScanText).sliced(blank + 1);
    const qsizetype walk = qMin(CandidateWalk, rest.size());
    for (qsizetype m = 0; m < walk; ++m) {
        if (rightStop(static_cast<unsigned char>(rest[m]))) {
            stop = true;
            return {};
        }
        if (rest[m] == ' ')
            return rest.first(m).toByteArray();
    }
    return {};
}

QByteArray EmailScanner::plainAddress() const
{
    const qsizetype at = ScanText.indexOf('@');
    if (at < 0)
        return {};
    for (qsizetype k = at; k >= 0; --k) {
        const auto c = static_cast<unsigned char>(ScanText[k]);
        if (leftStop(c))
            return {};
        if (c != ' ')
            continue;
        bool stop = false;
        QByteArray candidate = candidateAt(k, stop);
        if (stop)
            return {};
        if (candidate.size() <= 6)
            continue;
        for (const char* suffix : Suffixes) {
            if (!candidate.contains(suffix))
                continue;
            for (char mark : {' ', '#', '(', '?'})
                cutBefore(candidate, mark);
            trimSlashes(candidate);
            return candidate;
        }
    }
    return {};
}

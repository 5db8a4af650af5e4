#include "TitleTest.h"

#include "core/SingleByteText.h"

#include <QRegularExpression>
#include <QStringDecoder>

bool IsBadTitle(const QStringList& badTitles, const QString& word, const QString& title)
{
    for (const QString& entry : badTitles) {
        const bool address = entry.left(7).toLower() == QLatin1String("http://");
        if ((address ? entry + word : entry) == title)
            return true;
    }
    return false;
}

namespace {

QString decodeBytes(const QByteArray& bytes)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString text = utf8.decode(bytes);
    return utf8.hasError() ? SingleByteText::decode(bytes) : text;
}

QString entity(const QString& name)
{
    static const QHash<QString, QString> named = {{"amp", "&"},   {"lt", "<"},   {"gt", ">"},
                                                  {"quot", "\""}, {"apos", "'"}, {"nbsp", " "}};
    if (name.startsWith(QLatin1Char('#'))) {
        bool ok = false;
        const bool hex = name.size() > 1 && (name[1] == QLatin1Char('x') || name[1] == 'X');
        const uint code = hex ? name.mid(2).toUInt(&ok, 16) : name.mid(1).toUInt(&ok, 10);
        if (ok && code > 0 && code <= 0x10FFFF) {
            const char32_t c = code;
            return QString::fromUcs4(&c, 1);
        }
    }
    return named.value(name.toLower(), QLatin1Char('&') + name + QLatin1Char(';'));
}

QString decodeEntities(const QString& text)
{
    static const QRegularExpression ref(QStringLiteral("&(#[0-9]+|#[xX][0-9a-fA-F]+|[a-zA-Z]+);"));
    QString out;
    qsizetype from = 0;
    for (auto it = ref.globalMatch(text); it.hasNext();) {
        const QRegularExpressionMatch m = it.next();
        out += text.mid(from, m.capturedStart() - from) + entity(m.captured(1));
        from = m.capturedEnd();
    }
    return out + text.mid(from);
}

} // namespace

QString TitleOfHtml(const QByteArray& html)
{
    static const QRegularExpression title(QStringLiteral("<title[^>]*>(.*?)</title\\s*>"),
                                          QRegularExpression::CaseInsensitiveOption |
                                              QRegularExpression::DotMatchesEverythingOption);
    const QRegularExpressionMatch m = title.match(decodeBytes(html));
    return m.hasMatch() ? decodeEntities(m.captured(1)).simplified() : QString();
}

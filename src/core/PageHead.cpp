#include "PageHead.h"

namespace {
QString meta(const QString& name, const QString& value)
{
    return QStringLiteral("<META Name = \"%1\" Content = \"%2\">").arg(name, value);
}
} // namespace

QStringList PageHeadLines(const QString& title, const QString& description, const QString& keywords)
{
    return {QStringLiteral("<HTML>"),
            QStringLiteral("<HEAD>"),
            QStringLiteral("<TITLE>") + title + QStringLiteral("</TITLE>"),
            meta(QStringLiteral("Description"), description),
            meta(QStringLiteral("Keywords"), keywords),
            meta(QStringLiteral("Rating"), QStringLiteral("General")),
            QStringLiteral("<style TYPE=\"text/css\">"),
            QStringLiteral("<!--"),
            QStringLiteral("A{text-decoration: none;} A:link{color: #5900DF;} A:visited{color: "
                           "#FFA000;} A:hover{ color:#FF0000; text-decoration: underline }"),
            QStringLiteral("-->"),
            QStringLiteral("</style>"),
            QStringLiteral("</HEAD>"),
            QStringLiteral("<BODY>")};
}

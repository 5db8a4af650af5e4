#include "GraphicsPages.h"

#include "CacheActionHost.h"
#include "CacheOutputFile.h"
#include "CacheState.h"
#include "core/PromptService.h"
#include "core/SingleByteText.h"
#include "core/VbRuntime.h"

namespace {

constexpr int Columns = 4;
constexpr int RowsPerPage = 20;

QString pageName(const QString& outDir, int number)
{
    return outDir + "CacheGraphics" + (number ? QString::number(number) : QString()) + ".htm";
}

// The path goes into the page as it is; only a double quote, which would
// end the attribute, is written as its entity.
QByteArray attribute(const QString& path)
{
    return SingleByteText::encode(path).replace("\"", "&quot;");
}

class PageWriter
{
public:
    PageWriter(const QStringList& pictures, const QString& outDir)
        : m_pictures(pictures), m_outDir(outDir)
    {
    }

    QStringList write(int rows)
    {
        openPage();
        for (int r = 1; r <= rows; ++r) {
            if (r % RowsPerPage == 0) {
                closePage();
                ++m_number;
                openPage();
            }
            writeRow();
            if (r == rows && m_pictures.size() % Columns != 0)
                writeRow();
        }
        closePage();
        return m_pages;
    }

private:
    void openPage()
    {
        m_pages.append(pageName(m_outDir, m_number));
        m_page.open(m_pages.last(), CacheOutputFile::Overwrite);
        WriteGraphicsHeader(m_page);
    }
    void closePage()
    {
        m_page.print("</table></BODY></HTML>");
        m_page.close();
    }
    void writeRow()
    {
        m_page.print("<tr>");
        for (int cell = 0; cell < Columns; ++cell)
            writeCell();
        m_page.print("</tr>");
    }
    // Past the last picture a cell has no path, and from the first such cell
    // on every alt text says so.
    void writeCell()
    {
        ++m_cell;
        QByteArray path;
        if (m_cell > m_pictures.size())
            m_alt = "No Picture to display!";
        else
            path = attribute(m_pictures[m_cell - 1]);
        const QByteArray alt = m_alt.isEmpty() ? path : m_alt;
        m_page.print("<td align=\"center\"><a href=\"" + path + "\"><img src=\"" + path +
                     "\" width=\"100\" height=\"100\" alt=\"" + alt + "\"></a></td>");
    }

    const QStringList& m_pictures;
    QString m_outDir;
    CacheOutputFile m_page;
    QStringList m_pages;
    QByteArray m_alt;
    int m_number = 0;
    int m_cell = 0;
};

} // namespace

void WriteGraphicsHeader(CacheOutputFile& page)
{
    for (const char* line :
         {"<HTML>", "<HEAD>", "<TITLE>Vorlan's Cache Graphics Browse File</TITLE>",
          "<META Name = \"Description\" Content = \"Vorlan's Cache Graphics Browse File\">",
          "<META Name = \"Keywords\" Content = \"Vorlan,graphics,browse\">",
          "<META Name = \"Rating\" Content = \"General\">", "<style TYPE=\"text/css\">", "<!--",
          "A{text-decoration: none;} A:link{color: #5900DF;} A:visited{color: #FFA000;} "
          "A:hover{ color:#FF0000; text-decoration: underline }",
          "-->", "</style>", "</HEAD>",
          "<BODY><CENTER><H3>Click the right arrow for the next file!</H3></CENTER><P>",
          "<BODY><CENTER><H4>Click picture to get actual size</H4></CENTER><P>",
          "<BODY><CENTER>Selecting Jpg or Gif in IECache loads only that type</CENTER><P>",
          "<table align=\"center\" border=\"1\" bordercolor=\"#000000\" cellspacing=\"0\" "
          "cellpadding=\"2\">"})
        page.print(line);
}

bool BuildGraphicsPages(CacheState& state, PromptService& prompts, CacheActionHost& host)
{
    // Index 0 of the work list takes no part: the picture table starts at 1.
    QStringList pictures;
    for (int i = 1; i < state.FoundFiles.size(); ++i)
        if (!state.FoundFiles[i].isEmpty())
            pictures.append(state.FoundFiles[i]);
    state.FoundFiles = QStringList{QString()};
    if (pictures.size() < Columns) {
        prompts.msgBox("Must be at least four pictures to use this function!");
        return false;
    }
    const int rows = Vb::CInt(double(pictures.size()) / Columns); // half to even
    host.showGraphicsPages(PageWriter(pictures, state.OutDir).write(rows));
    return true;
}

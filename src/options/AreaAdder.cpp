#include "AreaAdder.h"

#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/VbRuntime.h"

namespace {
const char* const CanNotAdd = "Can not add record!";

bool isAsciiLetterOrDigit(int code)
{
    return (code >= '0' && code <= '9') || (code >= 'a' && code <= 'z') ||
           (code >= 'A' && code <= 'Z');
}
} // namespace

AreaAdder::AreaAdder(AppContext& ctx) : m_ctx(ctx)
{
    form.setText(QStringLiteral("New Area Addition Window"));
    Label1.setText(QStringLiteral("Type neighborhood description below:  (43 character max.)"));
    Label2.setText(QStringLiteral("Type neighborhood name below: (21 character max.)"));
    Label3.setText(QStringLiteral("Type suburb name below:  (21 character max.)"));
    cmd[0].setText(QStringLiteral("Add"));
    cmd[1].setText(QStringLiteral("Quit"));
    cmd[2].setText(QStringLiteral("Cancel"));
    for (int i = 0; i < 3; ++i)
        connect(&txtAdd[i], &Control::changed, this, [this, i] { keepTypable(i); });
    connect(&cmd[0], &Control::clicked, this, &AreaAdder::AddClick);
    connect(&cmd[1], &Control::clicked, this, &AreaAdder::QuitClick);
    connect(&cmd[2], &Control::clicked, this, &AreaAdder::CancelClick);
}

void AreaAdder::AddAreas(int neighborhoodTable, int suburbTable, int addMode, int neighborhood)
{
    intNeighborhoodTable = neighborhoodTable;
    intSuburbTable = suburbTable;
    intAddMode = addMode;
    m_neighborhood = neighborhood;
    blnChanged = false;
    txtAdd[0].setEnabled(addMode == 0);
    txtAdd[1].setEnabled(addMode == 0);
    txtAdd[2].setEnabled(addMode == 1);
}

bool AreaAdder::keyAccepted(int index, int code)
{
    return code == 8 || isAsciiLetterOrDigit(code) || (index == 0 && code == ' ');
}

void AreaAdder::keepTypable(int index)
{
    const QString typed = txtAdd[index].text();
    QString kept;
    for (const QChar c : typed)
        if (c != QChar(8) && keyAccepted(index, c.unicode()))
            kept.append(c);
    kept.truncate(index == 0 ? DescriptionLength : NameLength);
    if (kept != typed)
        txtAdd[index].setText(kept);
}

// Each box must hold something; a short text is asked about once for all.
bool AreaAdder::typedAndConfirmed(const QList<int>& boxes)
{
    for (int i : boxes)
        if (txtAdd[i].text().isEmpty()) {
            m_ctx.MsgBox(QStringLiteral("Nothing has been typed!"));
            return false;
        }
    for (int i : boxes)
        if (txtAdd[i].text().size() < 4)
            return m_ctx.MsgBox(QStringLiteral("Are you sure this is correct?"),
                                PromptService::YesNo,
                                QStringLiteral("Very Small")) == PromptService::Yes;
    return true;
}

void AreaAdder::AddClick()
{
    if (!typedAndConfirmed(intAddMode == 1 ? QList<int>{2} : QList<int>{1, 0}))
        return;
    for (Control& c : cmd)
        c.setEnabled(false);
    AddRecord();
    for (Control& c : cmd)
        c.setEnabled(true);
}

void AreaAdder::AddRecord()
{
    try {
        if (intAddMode == 0)
            addNeighborhood();
        else
            addSuburb();
    } catch (const std::exception& e) {
        refuse(QString::fromUtf8(e.what()));
    }
}

void AreaAdder::refuse(const QString& text)
{
    m_ctx.MsgBox(text, PromptService::OkOnly, QString::fromLatin1(CanNotAdd));
}

void AreaAdder::addNeighborhood()
{
    const auto& t = m_ctx.state.gastrTables[intNeighborhoodTable];
    if (m_ctx.gdbMain.recordCount(t[0]) >= MaxNeighborhoods) {
        refuse(QStringLiteral("Maximum neighborhoods (99) reached!"));
        return;
    }
    m_ctx.gdbMain.append(t[0], {t[1], t[2]},
                         {{txtAdd[1].text().trimmed(), txtAdd[0].text().trimmed()}});
    blnChanged = true;
    txtAdd[0].setText(QString(""));
    txtAdd[1].setText(QString(""));
}

void AreaAdder::addSuburb()
{
    const auto& t = m_ctx.state.gastrTables[intSuburbTable];
    const auto rows = m_ctx.gdbMain.readAll(t[0], {t[1]});
    int count = 0;
    for (const TextRecord& row : rows)
        if (Vb::Val(NullToEmpty(row.fields.value(0))) == m_neighborhood)
            ++count;
    if (count >= MaxSuburbs) {
        refuse(QStringLiteral("Maximum Suburbs (74) reached!"));
        return;
    }
    m_ctx.gdbMain.append(t[0], {t[1], t[2]},
                         {{QString::number(m_neighborhood), txtAdd[2].text().trimmed()}});
    blnChanged = true;
    txtAdd[2].setText(QString(""));
}

void AreaAdder::QuitClick()
{
    emit unloadWanted();
}

void AreaAdder::CancelClick()
{
    blnChanged = false;
    emit unloadWanted();
}

#include "WordSources.h"

#include "MdbChooser.h"
#include "TextWordFile.h"
#include "WordListDialogs.h"
#include "WordListHost.h"
#include "core/AppContext.h"
#include "core/BuildFilter.h"
#include "core/FileServices.h"
#include "core/SettingsKeys.h"

#include <QFile>
#include <QFileInfo>

// The sample is compiled into a static library, whose resources are not
// registered on their own; this must stay outside any namespace.
static void registerSampleResource()
{
    static const bool registered = [] {
        Q_INIT_RESOURCE(wordlists);
        return true;
    }();
    Q_UNUSED(registered);
}

namespace {

const QString Sect2 = QLatin1String(Sect::WebBrwsrTwo);

void makeWritable(const QString& path)
{
    QFile file(path);
    file.setPermissions(file.permissions() | QFile::WriteOwner);
}

} // namespace

WordSources::WordSources(AppContext& ctx, WordListHost& host, WordListDialogs& dialogs)
    : m_ctx(ctx), m_host(host), m_dialogs(dialogs)
{
}

// Each save rewrites the settings file safely, which costs more than the
// reading of a whole word source; a value that stays is not written again.
void WordSources::save(const char* key, const QString& value)
{
    const QString absent = QStringLiteral("\x01");
    if (m_ctx.GetSetting(Sect2, key, absent) != value)
        m_ctx.SaveSetting(Sect2, key, value);
}

bool WordSources::PickWordSource(const QString& text)
{
    if (text.isEmpty())
        return ReadWordSource();
    m_ctx.state.gstrMdbResult = text.toLower();
    return true;
}

QString WordSources::sampleFolder() const
{
    registerSampleResource();
    const QString sample = m_ctx.appPath + QLatin1String(SampleFile);
    if (!QFileInfo::exists(sample) &&
        QFile::copy(QStringLiteral(":/wordlists/wbtsampl.txt"), sample))
        QFile::setPermissions(sample, QFile::ReadOwner | QFile::WriteOwner);
    return m_ctx.appPath;
}

QString WordSources::askFile(const QString& folder) const
{
    const QString start = folder.isEmpty() ? sampleFolder() : folder;
    return BuildFilter(m_ctx, start, QString(), QStringLiteral("txt"), QStringLiteral("mdb"),
                       QStringLiteral("Sample file = wbtsampl.txt"));
}

bool WordSources::ReadWordSource()
{
    m_ctx.state.gstrSites = {QString("")};
    QString file = m_ctx.GetSetting(Sect2, Key::WBT_InPutFile, QString(""));
    const QString folder = m_ctx.GetSetting(Sect2, Key::LastPath, QString(""));
    // A file renamed or moved since is asked for afresh, without the question.
    if (!QFileInfo(file).isFile())
        file.clear();
    bool chosenAgain = false;
    if (!file.isEmpty()) {
        makeWritable(file);
        if (m_ctx.GetSetting(Sect2, Key::PromptForNewFile, QString("")) == QLatin1String("1") &&
            m_ctx.MsgBox(QStringLiteral("Use previous input source?"), PromptService::YesNo,
                         QStringLiteral("Use Previous?")) == PromptService::No) {
            chosenAgain = true;
            file = askFile(folder);
        }
    }
    if (file.isEmpty())
        file = askFile(folder);
    if (file.isEmpty())
        return false;
    save(Key::WBT_InPutFile, file);
    save(Key::LastPath, PathBeforeLast(file, QLatin1Char('/')));
    if (file.right(3).toLower() == QLatin1String("mdb"))
        return readDatabase(file, chosenAgain);
    return readTextFile(file);
}

bool WordSources::readDatabase(const QString& file, bool chosenAgain)
{
    const QString table = m_ctx.GetSetting(Sect2, Key::DBTable, QString(""));
    const QString field = m_ctx.GetSetting(Sect2, Key::DBField, QString(""));
    // A file chosen anew may hold other tables: its table and field are asked.
    if (!table.isEmpty() && !field.isEmpty() && chosenAgain) {
        save(Key::DBTable, QString(""));
        save(Key::DBField, QString(""));
    }
    m_ctx.state.gstrMdbResult.clear();
    MdbChooser chooser(m_ctx, m_host, [this](MdbChooser& c) { m_dialogs.showMdb(c); });
    chooser.StartTheFuckingThing(file);
    return m_ctx.state.gstrMdbResult != QLatin1String("aborted");
}

bool WordSources::readTextFile(const QString& file)
{
    save(Key::DBTable, QString(""));
    save(Key::DBField, QString(""));
    if (!FileReadable(file)) {
        save(Key::WBT_InPutFile, QString(""));
        return false;
    }
    QString error;
    const int count = TextWordFile::read(file, m_ctx.state.gstrSites, error);
    if (!error.isEmpty()) {
        errorNotice(m_ctx, error);
        return false;
    }
    m_host.GPysuedo(count);
    m_host.WBTPassSometext(NameAfterLast(file, QLatin1Char('/')));
    return true;
}

void WordSources::errorNotice(AppContext& ctx, const QString& description)
{
    ctx.MsgBox(QStringLiteral("An error has occured!\r\n\r\nDescription:") + description,
               PromptService::OkOnly, QStringLiteral("Exiting function!"));
}

#include "CacheActionRunner.h"

#include "CacheActionHost.h"
#include "CacheFailure.h"
#include "CacheFileOps.h"
#include "CacheState.h"
#include "CacheText.h"
#include "GraphicsPages.h"
#include "core/AppContext.h"
#include "core/FileServices.h"
#include "core/SingleByteText.h"
#include "core/VbRuntime.h"

#include <QFileInfo>
#include <chrono>
#include <future>
#include <map>

namespace {

enum Action
{
    Copy = 0,
    LCaseName = 1,
    UCaseName = 2,
    RemoveBrackets = 3,
    WriteList = 4,
    BrwsPics = 5,
    Html2Code = 6,
    Html2Text = 7,
    NoRepeats = 8,
    Lf2CrLf = 9,
    NoBlanks = 10,
    Search = 11,
    Replace = 12,
    Text2LCase = 13,
    Text2UCase = 14,
    FindEmail = 15,
    RemoveCrLf = 16,
    PutInto1File = 17
};

// "Html 2 code" and "Html 2 text" leave files of this size and more empty.
constexpr qsizetype ConversionLimit = 65000;
constexpr int NoRepeatsLines = 9999;
constexpr int ScratchFailures = 2; // see writeLines
// Long loops inside one file look at the stop flag this often.
constexpr qsizetype WalkChunk = 1 << 16;
constexpr int LinesBetweenPumps = 64;
// File work on more bytes than this runs beside the window's thread.
constexpr qint64 BesideWindowBytes = 4 << 20;
constexpr std::chrono::milliseconds PumpEvery{20};

// Runs the work on a thread of its own while the window's events are
// pumped, so that the window repaints and takes Close during a large file;
// small work runs at once. The work touches no state the window's events
// reach, and the stop flag is still looked at where the rounds look at it,
// so the results are the same either way.
template <typename Work>
auto besideWindow(CacheActionHost& host, qint64 bytes, Work work) -> decltype(work())
{
    if (bytes < BesideWindowBytes)
        return work();
    auto result = std::async(std::launch::async, std::move(work));
    while (result.wait_for(PumpEvery) != std::future_status::ready)
        host.pumpEvents();
    return result.get();
}

QByteArray lowered(const QByteArray& text)
{
    QByteArray out = text;
    CacheText::toLower(out);
    return out;
}

QByteArray uppered(const QByteArray& text)
{
    QByteArray out = text;
    CacheText::toUpper(out);
    return out;
}

// Every address of one file's lower-cased text, in the order the
// harvester hands them out.
QByteArrayList harvest(EmailScanner& scanner, const QByteArray& bytes)
{
    QByteArrayList found;
    QByteArray address;
    scanner.NextEmailAddress(lowered(bytes), address);
    while (!address.isEmpty()) {
        found << address;
        scanner.NextEmailAddress(QByteArray(), address);
    }
    return found;
}

QString fileName(const QString& path)
{
    return NameAfterLast(path, QLatin1Char('/'));
}

} // namespace

CacheActionRunner::CacheActionRunner(AppContext& ctx, CacheState& state, CacheActionHost& host)
    : m_ctx(ctx), m_state(state), m_host(host)
{
}

CacheActionRunner::~CacheActionRunner() = default;

void CacheActionRunner::RunCacheAction()
{
    if (m_host.listCount() == 0) {
        m_ctx.MsgBox("No files selected!");
        return;
    }
    if (m_state.SelectedAction < 0 || m_state.SelectedAction > 17) {
        m_host.clearActionOptions();
        m_ctx.MsgBox("You must first select an Action!");
        return;
    }
    startRun();
    runAction(m_state.SelectedAction);
}

// Fixes the work list and the loop's limit. With a selection the limit is
// one above the last index, so that the loop runs a round past the end.
void CacheActionRunner::startRun()
{
    m_host.SaveCacheSettings();
    m_host.setControlsEnabled(false);
    const QVector<int> rows = m_host.selectedRows();
    if (!rows.isEmpty()) {
        QStringList chosen;
        for (int row : rows)
            chosen.append(row >= 0 && row < m_state.FoundFiles.size() ? m_state.FoundFiles[row]
                                                                      : QString());
        m_state.FoundFiles = chosen;
        m_last = int(rows.size());
    } else {
        m_last = int(m_state.FoundFiles.size()) - 1;
    }
    m_host.setTitle("I'm Busy, don't disturb me!");
    m_failures = 0;
    m_ended = false;
    m_inTag = false;
    m_writtenLines.clear();
    m_step = 0;
    if (m_last == 0)
        fail(CacheFailure::DivisionByZero);
    else
        m_step = 100.0f / float(m_last);
    m_state.Busy = true;
}

void CacheActionRunner::runAction(int action)
{
    switch (action) {
    case Copy:
        return copyFiles();
    case LCaseName:
    case UCaseName:
    case RemoveBrackets:
        return renameFiles(action);
    case WriteList:
        return writeList();
    case BrwsPics:
        return browsePictures();
    case Html2Code:
        return htmlToCode();
    case Html2Text:
        return htmlToText();
    case NoRepeats:
        return noRepeats();
    case Lf2CrLf:
        return rewriteEach(&CacheText::lfToCrLf);
    case NoBlanks:
        return rewriteLines(&CacheText::nonBlankLines);
    case Search:
    case Replace:
        return searchOrReplace(action == Replace);
    case Text2LCase:
        return rewriteEach(&lowered);
    case Text2UCase:
        return rewriteEach(&uppered);
    case FindEmail:
        return findEmail();
    case RemoveCrLf:
        return rewriteEach(&CacheText::withoutLineBreaks);
    case PutInto1File:
        return putIntoOneFile();
    }
}

void CacheActionRunner::FinishCacheAction()
{
    m_output.close();
    m_host.setControlsEnabled(true);
    m_host.setTitle("I'm Finished!");
    m_host.ResetCount();
    m_host.unloadProgress();
    m_host.unloadWait();
    m_state.Busy = false;
}

void CacheActionRunner::endRun()
{
    m_ended = true;
    FinishCacheAction();
    m_host.ListCacheFiles();
}

bool CacheActionRunner::fail(int number)
{
    if (m_ended)
        return false;
    if (CacheFailure::ignored(number))
        return true;
    if (++m_failures < 3)
        return true;
    endRun();
    return false;
}

bool CacheActionRunner::increm(int percent)
{
    try {
        m_host.Increm(percent);
    } catch (const CacheProgressOverflow&) {
        return fail(CacheFailure::ProgressOverflow);
    }
    return true;
}

// The steps every round begins with. A text action reads its file first;
// one that cannot be read whole is passed over in silence. The round past
// the end of a selection fails at its first look into the work list and
// does nothing more.
CacheActionRunner::Round CacheActionRunner::beginRound(int i, bool text, QByteArray& bytes)
{
    const bool inList = i < m_state.FoundFiles.size();
    if (text && !inList)
        return fail(CacheFailure::SubscriptOutOfRange) ? Round::Skip : Round::End;
    if (text) {
        const QString& path = m_state.FoundFiles[i];
        if (besideWindow(m_host, QFileInfo(path).size(),
                         [&] { return CacheFileOps::readWhole(path, bytes); }) != 0)
            return Round::Skip;
    }
    if (m_state.StopRequested) {
        m_state.StopRequested = false;
        endRun();
        return Round::End;
    }
    if (!increm(Vb::CInt(double(float(i) * m_step))))
        return Round::End;
    m_host.pumpEvents();
    if (!inList)
        return fail(CacheFailure::SubscriptOutOfRange) ? Round::Skip : Round::End;
    return Round::Work;
}

template <typename Work>
void CacheActionRunner::eachRound(bool text, Work work, const std::function<void()>& afterLoop)
{
    QByteArray bytes;
    for (int i = 0; i <= m_last; ++i) {
        const Round round = beginRound(i, text, bytes);
        if (round == Round::End)
            return;
        if (round == Round::Skip)
            continue;
        work(i, m_state.FoundFiles[i], bytes);
        if (m_ended)
            return;
    }
    m_output.close();
    if (afterLoop)
        afterLoop();
    endRun();
}

bool CacheActionRunner::openOutput(CacheOutputFile& file, const QString& path,
                                   CacheOutputFile::Mode mode)
{
    const int failure = file.open(path, mode);
    return failure == 0 || fail(failure);
}

bool CacheActionRunner::print(CacheOutputFile& file, const QByteArray& text)
{
    const int failure = file.print(text);
    return failure == 0 || fail(failure);
}

bool CacheActionRunner::printLines(CacheOutputFile& file, const QByteArrayList& lines)
{
    for (const QByteArray& line : lines)
        if (!print(file, line))
            return false;
    return true;
}

// The text written, with its line end, to a new file of the name in the
// output folder.
bool CacheActionRunner::writeCopy(const QString& name, const QByteArray& text)
{
    const QString target = UniqueFileName(m_state.OutDir + name);
    // The three steps run to their end and their failures are then judged in
    // order: a run that ends at one of them closes the file all the same.
    const QVector<int> failures = besideWindow(m_host, text.size(), [&] {
        CacheOutputFile file;
        return QVector<int>{file.open(target), file.print(text), file.close()};
    });
    for (int failure : failures)
        if (failure && !fail(failure))
            return false;
    return true;
}

void CacheActionRunner::copyFiles()
{
    eachRound(false, [&](int, const QString& path, const QByteArray&) {
        const QString target = UniqueFileName(m_state.OutDir + fileName(path));
        if (!path.isEmpty())
            if (const int error = besideWindow(m_host, QFileInfo(path).size(), [&] {
                    return CacheFileOps::copyFile(path, target);
                }))
                fail(CacheFailure::fromErrno(error));
    });
}

// The three renames in place. The whole path changes case, folders too, as
// far as the file system has them in that case; "Remove [x]" cuts the name
// before its first "[" and keeps the extension, made unique, so that a name
// without one gains a number.
void CacheActionRunner::renameFiles(int action)
{
    eachRound(false, [&](int, const QString& path, const QByteArray&) {
        QString target;
        if (action == LCaseName)
            target = path.toLower();
        else if (action == UCaseName)
            target = path.toUpper();
        else {
            const QString name = fileName(path);
            const int dot = int(name.indexOf(QLatin1Char('.')));
            QString base = dot < 0 ? name : name.left(dot);
            const QString extension = dot < 0 ? QString() : name.mid(dot);
            const int bracket = int(base.indexOf(QLatin1Char('[')));
            if (bracket >= 0)
                base.truncate(bracket);
            target = UniqueFileName(PathBeforeLast(path, QLatin1Char('/')) + base + extension);
        }
        if (const int error = CacheFileOps::renameNoReplace(path, target))
            fail(CacheFailure::fromErrno(error));
    });
}

void CacheActionRunner::writeList()
{
    if (openOutput(m_output, UniqueFileName(m_state.OutDir + "CList.txt")))
        eachRound(false, [&](int, const QString& path, const QByteArray&) {
            print(m_output, SingleByteText::encode(path));
        });
}

// "Brws Pics " keeps the GIF and JPEG entries of the work list and builds
// the picture pages from them; its rounds neither show progress nor look
// at the stop flag.
void CacheActionRunner::browsePictures()
{
    for (int i = 0; i <= m_last; ++i) {
        if (i >= m_state.FoundFiles.size()) {
            if (!fail(CacheFailure::SubscriptOutOfRange))
                return;
            continue;
        }
        const QString kind = m_state.FoundFiles[i].right(3).toLower();
        if (kind != "gif" && kind != "jpg")
            m_state.FoundFiles[i].clear();
    }
    m_host.ResetCount();
    m_host.unloadProgress();
    // Shown pages close the window, whose unloading finishes the action.
    if (!BuildGraphicsPages(m_state, m_ctx.prompts, m_host))
        endRun();
}

void CacheActionRunner::htmlToCode()
{
    const bool print9 =
        m_ctx.MsgBox("Use Print #9 format?", PromptService::YesNo | PromptService::Question,
                     "Write or Print?") == PromptService::Yes;
    const QByteArray prefix = print9 ? "Print #9, \"" : ".Write \"";
    eachRound(true, [&](int, const QString& path, const QByteArray& bytes) {
        QString name = fileName(path);
        if (name.right(3).toLower() == "htm")
            name = name.chopped(3) + "txt";
        const QByteArray text = bytes.size() >= ConversionLimit ? QByteArray() : bytes;
        writeLines(UniqueFileName(m_state.OutDir + name), CacheText::htmlToCodeLines(text, prefix),
                   ScratchFailures);
    });
}

void CacheActionRunner::htmlToText()
{
    eachRound(true, [&](int, const QString& path, const QByteArray& bytes) {
        htmlToTextFile(fileName(path), bytes);
    });
}

// The walk over the text looks at the stop flag as it goes; a stop in the
// middle of a file ends the run before that file's output is made.
bool CacheActionRunner::htmlToTextFile(const QString& name, const QByteArray& bytes)
{
    QByteArray text = CacheText::htmlToTextPrepared(bytes);
    if (text.size() >= ConversionLimit)
        text.clear();
    QByteArray kept;
    for (qsizetype at = 0; at < text.size(); at += WalkChunk) {
        if (m_state.StopRequested) {
            m_state.StopRequested = false;
            endRun();
            return false;
        }
        m_host.pumpEvents();
        CacheText::stripTags(QByteArrayView(text).sliced(at, qMin(WalkChunk, text.size() - at)),
                             m_inTag, kept);
    }
    return writeLines(
        UniqueFileName(m_state.OutDir + name.left(qMax(0, int(name.size()) - 3)) + "txt"),
        CacheText::nonBlankLines(kept), ScratchFailures);
}

// "Html 2 code" and "Html 2 text" pass their text through a scratch file in
// the output folder before its lines are written. That file is kept in
// memory here; when the folder takes no file, the scratch file's write and
// its reading back fail too, and count as such (scratchFailures).
bool CacheActionRunner::writeLines(const QString& target, const QByteArrayList& lines,
                                   int scratchFailures)
{
    CacheOutputFile file;
    if (const int failure = file.open(target)) {
        if (!fail(failure))
            return false;
        for (int n = 0; n < scratchFailures; ++n)
            if (!fail(CacheFailure::BadFileNumber))
                return false;
    }
    if (!printLines(file, lines))
        return false;
    const int failure = file.close();
    return failure == 0 || fail(failure);
}

void CacheActionRunner::noRepeats()
{
    eachRound(true, [&](int, const QString& path, const QByteArray& bytes) {
        noRepeatsFile(fileName(path), bytes);
    });
}

// The lines written are remembered for the whole run, so that a line seen
// in one file is left out of every later one. Progress goes by line, with a
// factor of the line count over a hundred: past a hundred percent each line
// is a counted failure, and the third ends the run in the middle of the
// file.
bool CacheActionRunner::noRepeatsFile(const QString& name, const QByteArray& bytes)
{
    QByteArrayList lines;
    int counter = 0;
    CacheText::forEachLine(bytes, [&](QByteArrayView line) {
        if (++counter > NoRepeatsLines)
            return false;
        lines.append(CacheText::trimmed(line).toByteArray());
        return true;
    });
    const int factor = Vb::CInt(counter / 100.0);
    CacheOutputFile file;
    if (!openOutput(file, UniqueFileName(m_state.OutDir + name)))
        return false;
    for (int n = 1; n <= lines.size(); ++n) {
        if (n % LinesBetweenPumps == 0)
            m_host.pumpEvents();
        if (m_state.StopRequested) {
            m_state.StopRequested = false;
            endRun();
            return false;
        }
        if (!increm(factor * n))
            return false;
        const QByteArray& line = lines[n - 1];
        if (m_writtenLines.contains(line))
            continue;
        if (!print(file, line))
            return false;
        m_writtenLines.insert(line);
    }
    const int failure = file.close();
    return failure == 0 || fail(failure);
}

// A count never given a value shows as nothing in the notice.
void CacheActionRunner::searchOrReplace(bool replace)
{
    const QString search = m_ctx.prompts.inputBox("Text to search for in these files?", QString());
    const QString with =
        replace ? m_ctx.prompts.inputBox("Text to replace that with?", QString()) : QString();
    const QByteArray what = SingleByteText::encode(search);
    const QByteArray by = SingleByteText::encode(with);
    int count = 0;
    const auto eachFile = [&](int, const QString& path, const QByteArray& bytes) {
        if (!besideWindow(m_host, bytes.size(), [&] { return CacheText::contains(bytes, what); }))
            return;
        ++count;
        writeCopy(fileName(path),
                  replace ? besideWindow(m_host, bytes.size(),
                                         [&] { return CacheText::replaced(bytes, what, by); })
                          : bytes);
    };
    eachRound(true, eachFile, [&] {
        m_host.unloadProgress();
        m_ctx.MsgBox((count ? QString::number(count) : QString()) + " files containing " + search +
                         " !",
                     PromptService::Information, "Copied to default output dir!");
    });
}

// The harvest of a file made ahead, beside the window's thread, while the
// rounds before it run.
struct EmailLookAhead
{
    bool read = false;
    QByteArray bytes;
    QByteArrayList found;
};

// Each address found is appended as a line to "CacheEmail.Txt"; the file is
// kept open between addresses, where it was opened for each, which writes
// the same.
//
// The next two files of the work list are read and harvested ahead on other
// threads, each with a scanner of its own: the scanner starts afresh with
// every text, so the answers are those of the one scanner in turn. A round
// uses them only when it reads the same bytes itself, so the run writes
// what the sequential one writes; files of the size that goes beside the
// window anyway are left to their own round.
void CacheActionRunner::findEmail()
{
    const QString target = UniqueFileName(m_state.OutDir + "CacheEmail.Txt");
    if (m_last > 20 &&
        !ShowLines(m_ctx.prompts,
                   {"Searching for email addresses can", "take a VERY long time! If you don't",
                    "mind waiting 30 or more minutes.\r", "Should I Proceed? ", ""},
                   "Warning!", true)) {
        endRun();
        return;
    }
    std::map<int, std::future<EmailLookAhead>> ahead;
    auto readAhead = [&](int k) {
        if (k > m_last || k >= m_state.FoundFiles.size() || ahead.count(k))
            return;
        const QString path = m_state.FoundFiles[k];
        if (QFileInfo(path).size() >= BesideWindowBytes)
            return;
        ahead[k] = std::async(std::launch::async, [path] {
            EmailLookAhead next;
            next.read = CacheFileOps::readWhole(path, next.bytes) == 0;
            if (next.read) {
                EmailScanner scanner;
                next.found = harvest(scanner, next.bytes);
            }
            return next;
        });
    };
    eachRound(true, [&](int i, const QString&, const QByteArray& bytes) {
        ahead.erase(ahead.begin(), ahead.lower_bound(i)); // rounds that were skipped
        readAhead(i + 1);
        readAhead(i + 2);
        QByteArrayList addresses;
        bool done = false;
        if (auto made = ahead.find(i); made != ahead.end()) {
            while (made->second.wait_for(PumpEvery) != std::future_status::ready)
                m_host.pumpEvents();
            EmailLookAhead next = made->second.get();
            ahead.erase(made);
            done = next.read && next.bytes == bytes;
            if (done)
                addresses = next.found;
        }
        if (!done)
            addresses =
                besideWindow(m_host, bytes.size(), [&] { return harvest(m_scanner, bytes); });
        for (const QByteArray& address : addresses) {
            if (!m_output.isOpen() && !openOutput(m_output, target, CacheOutputFile::Append))
                return;
            if (!print(m_output, address))
                return;
        }
    });
}

// The output takes the name of the work list's first file and is made in
// its round; when that file cannot be read no output opens and every write
// fails.
void CacheActionRunner::putIntoOneFile()
{
    eachRound(true, [&](int i, const QString& path, const QByteArray& bytes) {
        if (i == 0 && !openOutput(m_output, UniqueFileName(m_state.OutDir + fileName(path))))
            return;
        print(m_output, bytes);
    });
}

void CacheActionRunner::rewriteEach(QByteArray (*change)(const QByteArray&))
{
    eachRound(true, [&](int, const QString& path, const QByteArray& bytes) {
        writeCopy(fileName(path),
                  besideWindow(m_host, bytes.size(), [&] { return change(bytes); }));
    });
}

void CacheActionRunner::rewriteLines(QByteArrayList (*lines)(QByteArrayView))
{
    eachRound(true, [&](int, const QString& path, const QByteArray& bytes) {
        writeLines(UniqueFileName(m_state.OutDir + fileName(path)),
                   besideWindow(m_host, bytes.size(), [&] { return lines(bytes); }));
    });
}

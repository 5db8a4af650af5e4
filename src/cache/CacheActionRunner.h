#pragma once

#include "CacheActions.h"
#include "CacheOutputFile.h"
#include "EmailScanner.h"

#include <QByteArray>
#include <QSet>
#include <QString>
#include <functional>

class CacheActionHost;
struct AppContext;
struct CacheState;

// Runs the action chosen in the cache window on the listed files, or on the
// selected ones: copies, renames in place, and text conversions that leave
// a converted copy in the output folder. No action deletes or moves a
// listed file; three rename one where it lies.
//
// One error rule covers a run: a failure of six kinds (invalid argument,
// division by zero, file not found, file already exists, read past the
// end, permission denied) passes unseen; any other is counted, and the
// third ends the run as a finished one ends, without a message. So no
// failure of a single file is shown to the user.
class CacheActionRunner final : public CacheActions
{
public:
    CacheActionRunner(AppContext& ctx, CacheState& state, CacheActionHost& host);
    ~CacheActionRunner() override;

    void RunCacheAction() override;
    // Closes the action's files and gives the window back to the user; also
    // called when the window unloads.
    void FinishCacheAction() override;

private:
    enum class Round
    {
        Work,
        Skip,
        End
    };

    void startRun();
    void runAction(int action);
    void endRun();
    bool fail(int number);
    bool increm(int percent);
    Round beginRound(int i, bool text, QByteArray& bytes);
    // The loop over the work list; at its normal end the files close,
    // afterLoop runs and the run finishes.
    template <typename Work>
    void eachRound(bool text, Work work, const std::function<void()>& afterLoop = {});

    void copyFiles();
    void renameFiles(int action);
    void writeList();
    void browsePictures();
    void htmlToCode();
    void htmlToText();
    bool htmlToTextFile(const QString& name, const QByteArray& bytes);
    void noRepeats();
    bool noRepeatsFile(const QString& name, const QByteArray& bytes);
    void searchOrReplace(bool replace);
    void findEmail();
    void putIntoOneFile();
    void rewriteEach(QByteArray (*change)(const QByteArray&));
    void rewriteLines(QByteArrayList (*lines)(QByteArrayView));

    bool openOutput(CacheOutputFile& file, const QString& path,
                    CacheOutputFile::Mode mode = CacheOutputFile::New);
    bool print(CacheOutputFile& file, const QByteArray& text);
    bool printLines(CacheOutputFile& file, const QByteArrayList& lines);
    bool writeCopy(const QString& name, const QByteArray& text);
    bool writeLines(const QString& target, const QByteArrayList& lines, int scratchFailures = 0);

    AppContext& m_ctx;
    CacheState& m_state;
    CacheActionHost& m_host;
    int m_last = 0;     // the loop's upper limit L
    float m_step = 0;   // progress per round
    int m_failures = 0; // counted failures of this run
    bool m_ended = false;
    bool m_inTag = false;            // "Html 2 text": carried from file to file
    QSet<QByteArray> m_writtenLines; // "No Repeats": every line written this run
    CacheOutputFile m_output;        // the one output a run keeps open across rounds
    EmailScanner m_scanner;
};

#pragma once

#include <QString>
#include <QStringList>

// Every message box, question, input box and file, folder or font dialog of the
// program goes through this service. The windows install the real one; tests
// install a scripted one that answers and records.
class PromptService
{
public:
    // Styles and answers with the classic message box numbers, so that a
    // rule can be written with the flags it names (64, 36, ...).
    enum Style
    {
        OkOnly = 0,
        OkCancel = 1,
        YesNoCancel = 3,
        YesNo = 4,
        Critical = 16,
        Question = 32,
        Exclamation = 48,
        Information = 64
    };
    enum Answer
    {
        Ok = 1,
        Cancel = 2,
        Yes = 6,
        No = 7
    };

    virtual ~PromptService() = default;

    virtual int msgBox(const QString& text, int style = OkOnly,
                       const QString& title = QString()) = 0;

    // The text typed, or a null text when cancelled.
    virtual QString inputBox(const QString& prompt, const QString& title,
                             const QString& defaultText = QString()) = 0;

    // filters: "Name (*.ext)" entries; selectedFilter: index into them.
    // The chosen path, or the empty text when cancelled.
    virtual QString openFileName(const QString& title, const QString& startFolder,
                                 const QStringList& filters, int selectedFilter = 0) = 0;
    virtual QString saveFileName(const QString& title, const QString& startPath,
                                 const QStringList& filters, int selectedFilter = 0) = 0;
    virtual QString folderName(const QString& title, const QString& startFolder) = 0;

    // A font as the font dialog gives it: the colour as a number of the
    // classic kind, red + 256 * green + 65536 * blue.
    struct FontChoice
    {
        QString name;
        double pointSize = 0;
        int color = 0;
    };
    // The font dialog, with the colour among its choices; false when
    // cancelled, and choice is then as it was.
    virtual bool fontDialog(const QString& title, FontChoice& choice) = 0;

    // Opens a page of the program's help or an address with the desktop.
    virtual void openExternally(const QString& urlOrPath) = 0;
};

// The program's multi-line message: every line followed by a carriage
// return; with ask set a Yes/No question (true only for Yes), otherwise an
// information box (false).
bool ShowLines(PromptService& prompts, const QStringList& lines, const QString& title, bool ask);

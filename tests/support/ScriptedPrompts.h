#pragma once

#include "core/PromptService.h"

#include <QQueue>
#include <QVector>

// A prompt service for tests: answers from queues filled beforehand and
// records every prompt shown. A question asked with no answer queued is
// answered No (or Cancel) and counted in unanswered.
class ScriptedPrompts : public PromptService
{
public:
    struct Shown
    {
        QString kind; // "msgBox", "inputBox", "openFile", "saveFile", "folder", "font"
        QString title;
        QString text;
        int style = 0;
        QStringList filters;
        int selectedFilter = 0;
        QString start;
    };

    void answer(int button) { m_buttons.enqueue(button); }
    void answerText(const QString& text) { m_texts.enqueue(text); }
    void answerPath(const QString& path) { m_paths.enqueue(path); }
    void answerFont(const FontChoice& font) { m_fonts.enqueue(font); }

    int msgBox(const QString& text, int style, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString openFileName(const QString& title, const QString& startFolder,
                         const QStringList& filters, int selectedFilter) override;
    QString saveFileName(const QString& title, const QString& startPath, const QStringList& filters,
                         int selectedFilter) override;
    QString folderName(const QString& title, const QString& startFolder) override;
    // Cancelled when no font is queued.
    bool fontDialog(const QString& title, FontChoice& choice) override;
    void openExternally(const QString& urlOrPath) override { opened.append(urlOrPath); }

    QVector<Shown> shown;
    QStringList opened;
    int unanswered = 0;

    // The texts of every message box shown, in order.
    QStringList messages() const;
    void clear();

private:
    QString nextPath();

    QQueue<int> m_buttons;
    QQueue<QString> m_texts;
    QQueue<QString> m_paths;
    QQueue<FontChoice> m_fonts;
};

#include "ScriptedPrompts.h"

int ScriptedPrompts::msgBox(const QString& text, int style, const QString& title)
{
    shown.append({QStringLiteral("msgBox"), title, text, style, {}, 0, {}});
    const int buttons = style & 7;
    if (!m_buttons.isEmpty())
        return m_buttons.dequeue();
    if (buttons == OkOnly)
        return Ok;
    ++unanswered;
    return buttons == YesNo ? No : Cancel;
}

QString ScriptedPrompts::inputBox(const QString& prompt, const QString& title,
                                  const QString& defaultText)
{
    shown.append({QStringLiteral("inputBox"), title, prompt, 0, {}, 0, defaultText});
    if (m_texts.isEmpty()) {
        ++unanswered;
        return QString();
    }
    return m_texts.dequeue();
}

QString ScriptedPrompts::openFileName(const QString& title, const QString& startFolder,
                                      const QStringList& filters, int selectedFilter)
{
    shown.append({QStringLiteral("openFile"), title, {}, 0, filters, selectedFilter, startFolder});
    return nextPath();
}

QString ScriptedPrompts::saveFileName(const QString& title, const QString& startPath,
                                      const QStringList& filters, int selectedFilter)
{
    shown.append({QStringLiteral("saveFile"), title, {}, 0, filters, selectedFilter, startPath});
    return nextPath();
}

QString ScriptedPrompts::folderName(const QString& title, const QString& startFolder)
{
    shown.append({QStringLiteral("folder"), title, {}, 0, {}, 0, startFolder});
    return nextPath();
}

bool ScriptedPrompts::fontDialog(const QString& title, FontChoice& choice)
{
    shown.append({QStringLiteral("font"), title, {}, 0, {}, 0, {}});
    if (m_fonts.isEmpty()) {
        ++unanswered;
        return false;
    }
    choice = m_fonts.dequeue();
    return true;
}

QString ScriptedPrompts::nextPath()
{
    if (m_paths.isEmpty()) {
        ++unanswered;
        return QString("");
    }
    return m_paths.dequeue();
}

QStringList ScriptedPrompts::messages() const
{
    QStringList texts;
    for (const Shown& s : shown) {
        if (s.kind == QLatin1String("msgBox"))
            texts.append(s.text);
    }
    return texts;
}

void ScriptedPrompts::clear()
{
    shown.clear();
    opened.clear();
    unanswered = 0;
    m_buttons.clear();
    m_texts.clear();
    m_paths.clear();
    m_fonts.clear();
}

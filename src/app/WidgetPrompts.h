#pragma once

#include "core/PromptService.h"

class QWidget;

// The real prompt service: Qt's message boxes and dialogs. Texts written
// with carriage returns show their line breaks.
class WidgetPrompts : public PromptService
{
public:
    int msgBox(const QString& text, int style, const QString& title) override;
    QString inputBox(const QString& prompt, const QString& title,
                     const QString& defaultText) override;
    QString openFileName(const QString& title, const QString& startFolder,
                         const QStringList& filters, int selectedFilter) override;
    QString saveFileName(const QString& title, const QString& startPath, const QStringList& filters,
                         int selectedFilter) override;
    QString folderName(const QString& title, const QString& startFolder) override;
    bool fontDialog(const QString& title, FontChoice& choice) override;
    void openExternally(const QString& urlOrPath) override;

private:
    static QWidget* parent();
};

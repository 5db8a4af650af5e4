#pragma once

#include <QDialog>
#include <QPixmap>

class PromptService;

// The About box: the program's picture, name, version and purpose, and a
// button that shows what the system is.
class frmAbout : public QDialog
{
    Q_OBJECT
public:
    frmAbout(PromptService& prompts, const QPixmap& picture, QWidget* parent = nullptr);

    // The system's description that the System Info button shows.
    static QString SystemInfo();

private:
    PromptService& m_prompts;
};

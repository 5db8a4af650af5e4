#pragma once

#include <QDialog>
#include <functional>

class FolderTree;
class QPushButton;

// "Default Output Dir": a folder tree, Dir1, with OK and Cancel. It hands
// its answer to the cache window through PassVariable: the folder with a
// trailing "/", "aborted" for Cancel, or the empty text for OK on a folder
// that already ends in "/" (the root), which the cache window keeps
// waiting on.
class frmOutPutDir : public QDialog
{
    Q_OBJECT
public:
    frmOutPutDir(std::function<void(const QString&)> PassVariable, QWidget* parent = nullptr);

    FolderTree* Dir1;
    QPushButton* OKButton;
    QPushButton* CancelButton;

    // Shows the dialog modally, starting at path.
    void Fake(const QString& path);

protected:
    void reject() override;

private:
    void OKClick();
    void answer(const QString& result);

    std::function<void(const QString&)> m_pass;
    bool m_answered = false;
};

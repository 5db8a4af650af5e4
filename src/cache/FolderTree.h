#pragma once

#include <QTreeView>

class Control;
class QFileSystemModel;

// The folder picker: one tree of the file system's folders from "/",
// hidden ones included. It stands for the drive and directory pickers of
// the classic system, which this platform's single root makes one.
class FolderTree : public QTreeView
{
    Q_OBJECT
public:
    explicit FolderTree(QWidget* parent = nullptr);

    // The folder of the current entry, without a trailing "/" but for the root.
    QString path() const;
    // Makes a folder the current entry without reporting it as chosen.
    void setPath(const QString& path);
    // The tree shows the model's text (a path) and sets it when the user
    // moves to another folder: Change follows.
    void bind(Control& model);

    // Typing a letter would jump to a folder and list it: keys only move.
    void keyboardSearch(const QString&) override {}

signals:
    void pathChosen(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    // Opens the branches down to the pending folder as far as the model has
    // read them; the model reads folders in the background.
    void showPending();
    void scrollToCurrent();

    QFileSystemModel* m_model;
    QString m_pending;     // the folder to show once its branch is read
    bool m_follow = false; // the view keeps the current folder in sight until the user moves it
};

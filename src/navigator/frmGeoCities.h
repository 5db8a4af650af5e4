#pragma once

#include "Navigator.h"
#include "NavigatorHost.h"

#include <QMainWindow>

class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QSlider;

// The main window: a small window of fixed size that shows the Navigator's
// controls and menus. Its rules live in Navigator; closing it ends the
// program.
class frmGeoCities : public QMainWindow, public NavigatorHost
{
    Q_OBJECT
public:
    // Makes the window and runs its load: its place and the digit lists.
    // Throws when a stored place is no number. The other windows are
    // reached through windows.
    frmGeoCities(AppContext& ctx, NavigatorWindows& windows);
    ~frmGeoCities() override;

    Navigator& navigator() { return m_nav; }

    // NavigatorHost
    QRect screenTwips() const override;
    QRect windowTwips() const override;
    void moveWindowTwips(int left, int top) override;
    void setWindowOnTop(bool onTop) override;
    void showNoteDialog() override;
    void endProgram() override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void buildControls();
    void buildMenus();
    void buildCaptureProgress();
    QAction* addEntry(QMenu* menu, const QString& name, const QString& caption,
                      void (Navigator::*slot)());
    void showPicture();

    AppContext& m_ctx;
    NavigatorWindows& m_windows;
    Navigator m_nav;
    QMenu* m_fileMenu = nullptr;
    QLabel* m_picture = nullptr;
    bool m_ending = false;
};

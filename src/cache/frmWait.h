#pragma once

#include <QLabel>
#include <QWidget>

struct SharedState;

// The small notice that stands while a long job runs: one label, lblWait,
// "Loading...." unless the caller sets another text. It raises the wait
// flag gblnStartUpShown once it is on the screen and clears it when it goes.
class frmWait : public QWidget
{
    Q_OBJECT
public:
    explicit frmWait(SharedState& state);
    ~frmWait() override;

    QLabel* lblWait;

    // Shows the window and returns once it is on the screen, the events
    // pumped meanwhile, so that the label is painted before the job starts.
    void Load();

protected:
    void showEvent(QShowEvent* event) override;

private:
    SharedState& m_state;
};

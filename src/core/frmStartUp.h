#pragma once

#include <QLabel>
#include <QWidget>
#include <array>

struct SharedState;

// The borderless splash window shown while the data is made or loaded.
class frmStartUp : public QWidget
{
    Q_OBJECT
public:
    explicit frmStartUp(SharedState& state);
    ~frmStartUp() override;

    QLabel* Label2;
    QLabel* Label1;
    QLabel* Label12;
    std::array<QLabel*, 4> lblStartUp;
    // Sets the text of lblStartUp(index); 3 is the status line.
    void setLabel(int index, const QString& text);

protected:
    void showEvent(QShowEvent* event) override;

private:
    SharedState& m_state;
};

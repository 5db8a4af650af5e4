#pragma once

#include <QLabel>
#include <QPixmap>
#include <QWidget>
#include <array>

struct SharedState;

// The borderless splash window shown while the data is made or loaded.
class frmStartUp : public QWidget
{
    Q_OBJECT
public:
    // picture: the program's house, shown above the name.
    frmStartUp(SharedState& state, const QPixmap& picture);
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

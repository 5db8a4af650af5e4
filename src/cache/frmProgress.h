#pragma once

#include <QLabel>
#include <QVector>
#include <QWidget>

// "Progress Report": a bar of 101 small labels, lblProgress(0) to (100),
// shown one by one as an action goes on, and lblPercent. It stays on top
// of the other windows without taking the focus.
class frmProgress : public QWidget
{
    Q_OBJECT
public:
    frmProgress();

    static constexpr int LastLabel = 100;

    QVector<QLabel*> lblProgress;
    QLabel* lblPercent;

    // Shows every label from the counter up to percent, lblPercent naming
    // each, and leaves the counter one past percent. A label past the last
    // throws CacheProgressOverflow, the labels before it shown.
    void Increm(int percent);
    void ResetCount() { m_count = 0; }
    int count() const { return m_count; }

private:
    int m_count = 0;
};

#pragma once

#include <QObject>
#include <QTimer>
#include <QVector>
#include <functional>

class AddressComposer;
class Navigator;
struct AppContext;
struct NavigatorControls;

// The two walks: AutoNav steps the house number, RandNav jumps to random
// addresses. They pace themselves with tmrAN and tmrRB, which Browser One's
// load progress holds and releases; the check marks of mnuAutoNav and
// mnuRandNav are the walk's state.
class Wander : public QObject
{
    Q_OBJECT
public:
    enum class Mode
    {
        Off,
        AutoNav,
        RandNav
    };

    Wander(AppContext& ctx, Navigator& navigator);

    QTimer tmrAN;
    QTimer tmrRB;
    QVector<qint16> RandNavSelection; // 1-based entries; empty means all
    QString RandomDraw;

    // The time of day as text, the seed of each draw; the clock by default.
    std::function<QString()> timeOfDay;
    // The generator's value after a reseed with the given number, as the
    // text a single-precision value prints as; a Mersenne twister by default.
    std::function<QString(double seed)> randomValue;

    Mode mode() const;
    void setInterval(int milliseconds);

    QString RandomDigits();
    void RandNavStep();
    void AutoNavClick();
    void RandNavClick();

    // Enabling a timer that runs already does not restart it.
    static void enable(QTimer& timer)
    {
        if (!timer.isActive() && timer.interval() > 0)
            timer.start();
    }

signals:
    // The colours of Browser One and its menu checks follow the mode.
    void modeChanged(Wander::Mode mode);
    // tmrLimit of Browser One is to stop.
    void limitTimerOff();

private:
    // The tick of tmrAN or tmrRB: step unless the connection is gone.
    void tick(const std::function<void()>& step);
    void readSelection();
    int drawNeighborhood(bool& firstPair);
    int drawSuburb(int neighborhood);
    void setChecks(bool autoNav, bool randNav);
    void switchOff(QTimer& pace);
    bool switchingOn();

    AppContext& m_ctx;
    Navigator& m_nav;
    NavigatorControls& m_c;
    AddressComposer& m_composer;
};

#include "Wander.h"

#include "Navigator.h"
#include "addressdata/TextDatabase.h"
#include "core/AppContext.h"
#include "core/VbRuntime.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTime>
#include <random>

namespace {
const char* const NoConnection = "No internet connection!";
constexpr int MaxBlockDraws = 20;

QString clockText()
{
    return QTime::currentTime().toString(QStringLiteral("h:mm:ss AP"));
}

// One value of the generator, reseeded from the given number, as the text
// a single-precision value prints as. As with the classic runtime, a reseed
// mixes the number into the generator's state instead of restarting it, so
// draws within the same second of the clock still differ.
QString reseededDraw(double seed)
{
    static std::mt19937 generator;
    std::seed_seq mixed{static_cast<std::uint32_t>(generator()),
                        static_cast<std::uint32_t>(std::fmod(seed, 4294967296.0))};
    generator.seed(mixed);
    std::uniform_real_distribution<float> unit(0.0f, 1.0f);
    return QString::number(static_cast<double>(unit(generator)), 'g', 7);
}
} // namespace

Wander::Wander(AppContext& ctx, Navigator& navigator)
    : timeOfDay(clockText), randomValue(reseededDraw), m_ctx(ctx), m_nav(navigator),
      m_c(navigator.controls()), m_composer(navigator.composer())
{
    connect(&tmrAN, &QTimer::timeout, this, [this] { tick([this] { m_c.cmdNext.click(); }); });
    connect(&tmrRB, &QTimer::timeout, this, [this] { tick([this] { RandNavStep(); }); });
}

Wander::Mode Wander::mode() const
{
    if (m_c.mnuAutoNav.isChecked())
        return Mode::AutoNav;
    return m_c.mnuRandNav.isChecked() ? Mode::RandNav : Mode::Off;
}

void Wander::setInterval(int milliseconds)
{
    tmrAN.setInterval(milliseconds);
    tmrRB.setInterval(milliseconds);
    if (milliseconds <= 0) {
        tmrAN.stop();
        tmrRB.stop();
    }
}

QString Wander::RandomDigits()
{
    QString acc;
    for (;;) {
        QCoreApplication::processEvents();
        QString clock = timeOfDay();
        clock.remove(QRegularExpression(QStringLiteral("[^0-9]")));
        const QString draw = randomValue(Vb::Val(clock));
        for (QChar ch : draw) {
            if (ch.isDigit())
                acc.append(ch);
        }
        if (acc.size() > 20)
            acc = acc.mid(4, 6);
        if (!acc.startsWith(QLatin1Char('0')) && acc.size() > 4)
            return acc.left(4);
    }
}

int Wander::drawNeighborhood(bool& firstPair)
{
    const int count = m_ctx.state.catalogue.gintNeighborhoodCount;
    for (;;) {
        RandomDraw = RandomDigits();
        const int first = static_cast<int>(Vb::Val(RandomDraw.left(2)));
        const int second = static_cast<int>(Vb::Val(RandomDraw.right(2)));
        if (RandNavSelection.isEmpty()) {
            if (first >= 1 && first <= count) {
                firstPair = true;
                return first;
            }
            if (second >= 1 && second <= count) {
                firstPair = false;
                return second;
            }
            continue;
        }
        for (qint16 entry : RandNavSelection) {
            if (first == entry) {
                firstPair = true;
                return first;
            }
            if (second == entry) {
                firstPair = false;
                return second;
            }
        }
    }
}

// The right pair first: a Neighborhood without Suburbs waits for "00".
int Wander::drawSuburb(int neighborhood)
{
    const int count = m_ctx.state.catalogue.gaintSuburbCount.value(neighborhood);
    for (;;) {
        const QString draw = RandomDigits();
        const int right = static_cast<int>(Vb::Val(draw.right(2)));
        const int left = static_cast<int>(Vb::Val(draw.left(2)));
        if (right <= count)
            return right;
        if (left <= count)
            return left;
    }
}

void Wander::RandNavStep()
{
    SharedState& st = m_ctx.state;
    QString name, suburb;
    // Keeping to the archive's captures, a block the archive holds nothing
    // of is drawn again, a few times at most.
    for (int draws = 1;; ++draws) {
        bool firstPair = true;
        const int k = drawNeighborhood(firstPair);
        name = st.catalogue.name(k);
        if (st.gblnAssignRTC) {
            m_c.lblComment.setText(st.catalogue.gastrDescription.value(k));
            m_composer.CurrentNeighborhood = static_cast<qint16>(k);
            // The second pair always shows the USA list, also on the Japan site.
            m_c.picNeighborhood.show(firstPair && st.gblnJapan, k + 1);
        }
        const int s = drawSuburb(k);
        suburb = s > 0 ? st.catalogue.suburb(k, s) : QString("");
        if (draws >= MaxBlockDraws ||
            !m_nav.capturedWalk().holdsNothing(m_nav.blockOf(name, suburb)))
            break;
    }
    QString house = RandomDigits();
    // Keeping to the archive's captures, the digits choose among them.
    if (const int captured = m_nav.capturedWalk().draw(m_nav.blockOf(name, suburb), house))
        house = QString::number(captured);
    if (st.gblnAssignRTC) {
        m_composer.HouseNumber = house;
        m_c.cmbNeighborhood.setText(name);
        m_c.cmbSuburb.setText(suburb);
        m_c.cmdOpenSite.click();
    } else {
        m_nav.NavigateSomeWhereElse(m_composer.AddressText(name, suburb, house));
    }
}

void Wander::setChecks(bool autoNav, bool randNav)
{
    m_c.mnuAutoNav.setChecked(autoNav);
    m_c.mnuRandNav.setChecked(randNav);
    emit modeChanged(mode());
}

void Wander::readSelection()
{
    SharedState& st = m_ctx.state;
    RandNavSelection.clear();
    const int table = st.gblnJapan ? Tbl::JapanMisc : Tbl::UsaMisc;
    const auto records =
        m_ctx.gdbMain.readAll(st.gastrTables[table][0], FieldNames(st.gastrTables, table));
    for (const TextRecord& record : records) {
        QCoreApplication::processEvents();
        const int i = st.catalogue.find(NullToEmpty(record.fields.value(0)));
        if (i > 0)
            RandNavSelection.append(static_cast<qint16>(i));
    }
}

void Wander::switchOff(QTimer& pace)
{
    pace.stop();
    emit limitTimerOff();
    setChecks(false, false);
}

// A walk needs the connection; the user is told when it is not there.
bool Wander::switchingOn()
{
    if (!m_ctx.ConnectionUp()) {
        m_ctx.MsgBox(QString::fromLatin1(NoConnection));
        return false;
    }
    m_nav.LeaveSavedView();
    return true;
}

void Wander::RandNavClick()
{
    if (m_c.mnuRandNav.isChecked()) {
        RandNavSelection.clear();
        switchOff(tmrRB);
        return;
    }
    if (!switchingOn())
        return;
    if (m_c.mnuAutoNav.isChecked())
        AutoNavClick();
    setChecks(false, true);
    RandNavSelection.clear();
    if (m_ctx.state.gblnJapanRNS || m_ctx.state.gblnUsaRNS) {
        try {
            readSelection();
        } catch (const std::exception&) {
            RandNavSelection.clear();
        }
    }
    RandNavStep();
}

void Wander::AutoNavClick()
{
    if (m_c.mnuAutoNav.isChecked()) {
        switchOff(tmrAN);
        return;
    }
    if (!switchingOn())
        return;
    if (m_c.mnuRandNav.isChecked())
        RandNavClick();
    setChecks(true, false);
    m_c.cmdNext.click(); // RandNav is off, so this is the plain next number
}

// A tick does not stop its timer: the next page's progress holds it, so a
// page that never reports progress is replaced at the next tick.
void Wander::tick(const std::function<void()>& step)
{
    if (!m_ctx.ConnectionUp()) {
        m_nav.StopAutoModes();
        return;
    }
    try {
        if (!m_ctx.state.gblnFullPages)
            m_nav.browserStop();
        step();
    } catch (const std::exception&) {
    }
}

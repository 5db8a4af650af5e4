#pragma once

#include "core/Controls.h"

#include <QObject>

struct AppContext;

// The rules of frmAdd, "New Area Addition Window": a new Neighborhood with
// its description, or a new Suburb under a Neighborhood, written into the
// catalogue tables at once.
class AreaAdder : public QObject
{
    Q_OBJECT
public:
    static constexpr int MaxNeighborhoods = 99;
    static constexpr int MaxSuburbs = 74;
    static constexpr int DescriptionLength = 43;
    static constexpr int NameLength = 21;

    explicit AreaAdder(AppContext& ctx);

    Control form{QStringLiteral("frmAdd")};
    Control Label1{QStringLiteral("Label1")};
    Control Label2{QStringLiteral("Label2")};
    Control Label3{QStringLiteral("Label3")};
    Control txtAdd[3] = {Control(QStringLiteral("txtAdd[0]")), Control(QStringLiteral("txtAdd[1]")),
                         Control(QStringLiteral("txtAdd[2]"))};
    Control cmd[3] = {Control(QStringLiteral("cmd[0]")), Control(QStringLiteral("cmd[1]")),
                      Control(QStringLiteral("cmd[2]"))};

    // Stores the tables' rows of gastrTables, the mode (0 a Neighborhood,
    // 1 a Suburb) and the position of the Neighborhood a Suburb goes under.
    void AddAreas(int neighborhoodTable, int suburbTable, int addMode, int neighborhood);

    // Whether a key, as its character code (8 Backspace), may be typed into
    // box index: letters and digits, and the blank in the description.
    static bool keyAccepted(int index, int code);

    // Something was added since the window opened.
    bool changed() const { return blnChanged; }

    void AddClick();
    // Quit: the window closes; changed() tells the caller to reload.
    void QuitClick();
    void CancelClick();

signals:
    void unloadWanted();

private:
    bool typedAndConfirmed(const QList<int>& boxes);
    void AddRecord();
    void addNeighborhood();
    void addSuburb();
    void refuse(const QString& text);
    // A paste keeps only what typing could have given, within the length.
    void keepTypable(int index);

    AppContext& m_ctx;
    int intNeighborhoodTable = 0;
    int intSuburbTable = 1;
    int intAddMode = 0;
    int m_neighborhood = 0;
    bool blnChanged = false;
};

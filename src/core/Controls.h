#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

// The controls of a window as its rules see them: text, list, selection,
// value, caption, check and visibility, with the Change and Click events of
// the classic controls. The rules run on these without a screen; a window
// binds its widgets to them (ControlBinder), so the widget shows the state
// and reports the user's actions back.
//
// Events: Change fires when the text or value is set, by code or by the
// user, and differs from before; Click fires when the user chooses an entry
// or presses the control. Both are delivered at once, inside the call.
class Control : public QObject
{
    Q_OBJECT
public:
    explicit Control(const QString& name, QObject* parent = nullptr);

    QString name() const { return objectName(); }

    QString text() const { return m_text; }
    void setText(const QString& text);

    QString toolTip() const { return m_toolTip; }
    void setToolTip(const QString& tip);
    bool isVisible() const { return m_visible; }
    void setVisible(bool visible);
    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);
    bool isChecked() const { return m_checked; }
    void setChecked(bool checked);

    // The user pressed or chose this control.
    void click() { emit clicked(); }

signals:
    void changed();
    void clicked();
    void viewChanged();

protected:
    void setTextSilently(const QString& text);
    // Runs when code sets the text, before the events.
    virtual void textSet() {}

private:
    QString m_text;
    QString m_toolTip;
    bool m_visible = true;
    bool m_enabled = true;
    bool m_checked = false;
};

// A combo or list box whose text may be set by code to anything, while the
// user can only pick an entry (the program drops every key typed in one).
class ListControl : public Control
{
    Q_OBJECT
public:
    using Control::Control;

    int listIndex() const { return m_index; }
    // Selects an entry by code: the text follows, no event fires.
    void setListIndex(int index);
    int listCount() const { return m_items.size(); }
    QString item(int index) const { return m_items.value(index); }
    QStringList items() const { return m_items; }
    void addItem(const QString& item);
    // Takes entry index out: a selection of it ends, a later one moves up.
    void removeItem(int index);
    // Empties the list and the text; Change fires if there was text.
    void clear();

    // The user picked entry index: the text follows and Click fires.
    void userSelect(int index);

signals:
    // The whole list changed (emptied).
    void itemsChanged();
    // One entry was added at the end, at index.
    void itemAdded(int index);

private:
    void textSet() override { matchIndex(); }
    void matchIndex();

    QStringList m_items;
    int m_index = -1;
};

// A slider with a range; a value set outside it is refused with the error
// of an invalid property value and changes nothing.
class SliderControl : public Control
{
    Q_OBJECT
public:
    SliderControl(const QString& name, int min, int max, QObject* parent = nullptr);

    int value() const { return m_value; }
    void setValue(int value); // throws VbError 380 outside min .. max
    int minimum() const { return m_min; }
    // A value under the new minimum is raised to it, with Change.
    void setMinimum(int min);
    int maximum() const { return m_max; }
    // A new upper bound, not below the minimum. A value beyond it moves to
    // it, with the Change of a new value.
    void setMaximum(int max);

private:
    int m_min;
    int m_max;
    int m_value;
};

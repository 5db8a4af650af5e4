#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <functional>

// The browser windows of this program, in order: its own browser windows
// first, in the order they were made, then the windows that pages opened.
// Only windows of this program are ever listed, so only they are closed.
class BrowserWindowList : public QObject
{
    Q_OBJECT
public:
    // quit: how to close the window; it may delete the object.
    void addOwn(QObject* window, std::function<void()> quit);
    void addPopUp(QObject* window, std::function<void()> quit);
    void remove(QObject* window);

    int count() const;
    QObject* at(int index) const;
    // Closes the member at index (0-based); nothing happens if it is gone.
    void quit(int index);
    // Closes the members from index keep on, the last first.
    void quitFrom(int keep);

private:
    struct Member
    {
        QPointer<QObject> window;
        std::function<void()> quit;
        bool own = false;
    };
    void prune();

    QList<Member> m_members;
};

#include "BrowserWindowList.h"

#include <algorithm>

void BrowserWindowList::addOwn(QObject* window, std::function<void()> quit)
{
    prune();
    const auto firstPopUp =
        std::find_if(m_members.begin(), m_members.end(), [](const Member& m) { return !m.own; });
    m_members.insert(firstPopUp, Member{window, std::move(quit), true});
    connect(window, &QObject::destroyed, this, [this] { prune(); });
}

void BrowserWindowList::addPopUp(QObject* window, std::function<void()> quit)
{
    prune();
    m_members.append(Member{window, std::move(quit), false});
    connect(window, &QObject::destroyed, this, [this] { prune(); });
}

void BrowserWindowList::remove(QObject* window)
{
    m_members.erase(std::remove_if(m_members.begin(), m_members.end(),
                                   [window](const Member& m) { return m.window == window; }),
                    m_members.end());
}

void BrowserWindowList::prune()
{
    m_members.erase(std::remove_if(m_members.begin(), m_members.end(),
                                   [](const Member& m) { return m.window.isNull(); }),
                    m_members.end());
}

int BrowserWindowList::count() const
{
    return static_cast<int>(std::count_if(m_members.begin(), m_members.end(),
                                          [](const Member& m) { return !m.window.isNull(); }));
}

QObject* BrowserWindowList::at(int index) const
{
    int n = 0;
    for (const Member& m : m_members) {
        if (m.window.isNull())
            continue;
        if (n++ == index)
            return m.window;
    }
    return nullptr;
}

void BrowserWindowList::quit(int index)
{
    QObject* window = at(index);
    for (const Member& m : m_members) {
        if (m.window == window && window) {
            const auto quitWindow = m.quit;
            remove(window);
            if (quitWindow)
                quitWindow();
            return;
        }
    }
}

void BrowserWindowList::quitFrom(int keep)
{
    for (int i = count() - 1; i >= keep; --i)
        quit(i);
}

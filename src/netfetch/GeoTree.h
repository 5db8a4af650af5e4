#pragma once

#include "GeoTreeHost.h"

#include <QString>
#include <QVector>

struct AppContext;
class MainWindowCalls;

// The rules of frmTreeView, GeoTree: the Neighborhoods of the current site
// (and on the USA site their Suburbs) as nodes, and a click on a node
// opening that place's blocks page in Browser One beside the tree.
class GeoTree
{
public:
    struct Node
    {
        QString key;
        QString text;
        int parent = 0; // index of the parent node, 0 for a root
    };

    GeoTree(AppContext& ctx, MainWindowCalls& main, GeoTreeHost& host);

    // The window's Load: the blocks file, the shown flag, the browsers
    // moved beside the tree, the nodes.
    void Load();
    void Unload();

    // The nodes by index from 1 (entry 0 is unused), in the order added.
    const QVector<Node>& nodes() const { return m_nodes; }
    QString BlocksFile() const { return m_blocksFile; }

    // NodeClick: the node of that index and text.
    void NodeClick(int index, const QString& text);

    void ShowBrowserBesideTree();
    void FitBrowserBesideTree();

private:
    void addNodes();
    void makeRoomFor(GeoTreeHost::Browser which);
    // The browser at place moved right of the tree, its right edge kept
    // at or inside right.
    QRect besideTree(const QRect& place, int right) const;
    void browserStep();
    void suburbClick(int index, const QString& text);

    AppContext& m_ctx;
    MainWindowCalls& m_main;
    GeoTreeHost& m_host;
    QVector<Node> m_nodes;
    QString m_blocksFile;
};

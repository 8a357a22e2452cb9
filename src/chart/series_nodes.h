#pragma once

class QSGNode;
class ChartLines;

/// The two ways in which a ChartLines reaches the screen. Both take the node of the last frame (or null), bring it up
/// to date with the item's lines by copying, and return the node to keep. Called while the main thread is blocked.
namespace series_nodes {

/// Textured triangle strips, one per line. Their buffers only grow.
QSGNode *stripLines(QSGNode *node, const ChartLines &item, double devicePixelRatio);

/// Lines painted by the software scene graph, which shows no strips.
QSGNode *paintedLines(QSGNode *node, const ChartLines &item);

} // namespace series_nodes

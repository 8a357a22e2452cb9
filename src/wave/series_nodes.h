#pragma once

class QSGNode;
class SeriesItem;

/// The two ways in which a SeriesItem reaches the screen. Both take the node of the last frame (or null), bring it up
/// to date with the item's lines by copying, and return the node to keep. Called while the main thread stands.
namespace series_nodes {

/// Textured triangle strips, one per line. Their buffers only grow.
QSGNode *stripLines(QSGNode *node, const SeriesItem &item, double devicePixelRatio);

/// Lines painted by the software scene graph, which shows no strips.
QSGNode *paintedLines(QSGNode *node, const SeriesItem &item);

} // namespace series_nodes

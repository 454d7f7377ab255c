#pragma once
// The planner's named pictures ("HomeworkDown", "Checked", "GridTitleUp"...) as SVG
// resources, drawn at the device's pixels so they stay crisp at any scale, and the fonts
// the windows ask for by their old names.
#include <QPainter>
#include <QRectF>
#include <QSize>
#include <QString>

namespace qh {

// Makes the picture resources of this library available; safe to call more than once.
void initPictures();

// True when a picture of this name exists.
bool hasPicture(const QString& name);

// The picture's own size in pixels; empty for an unknown name.
QSize pictureSize(const QString& name);

// Draws the picture into the target rectangle (pixels). Most pictures stand at their own
// size at the top left (smaller, keeping their shape, in a smaller box). Pictures made
// to fill a box (button faces, column headers, the splash) fill it: one of about its
// shape is scaled, a much wider one keeps both ends at their own width and stretches the
// middle, so bevels and the sort mark of a column header keep their shape. Unknown names
// draw nothing.
void drawPicture(QPainter& painter, const QString& name, const QRectF& target);

// Maps the font names of the planner's windows ("Verdana", "Arial", "MS Sans Serif",
// "Courier") to installed fonts of the same metrics. Call once before any window shows.
void installFontSubstitutes();

}  // namespace qh

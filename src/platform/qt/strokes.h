// The strokes of a drawing, painted: on the screen, and into an image file.
#pragma once

#include <QColor>
#include <QSizeF>

#include "platform/forms/grid.h"

class QPainter;

namespace zelko {

// Black where the drawing leaves it to the desktop: drawings are meant for paper.
QColor colourOf(Colour colour);

// Twips, from the left top corner to the right and lower end of what is drawn.
QSizeF drawingSize(const PictureBox& picture);

// The painter's scale is twips; texts stand in the size of its font whatever the scale.
void paintDrawing(QPainter& painter, const PictureBox& picture);

// A PNG file at twice the size of a screen of 96 dots an inch. False where it was not written.
bool savePng(const PictureBox& picture, TextView path);

}  // namespace zelko

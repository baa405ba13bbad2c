// SPDX-License-Identifier: MIT
#pragma once

class QImage;
class QPainter;

/**
 * The image that @p painter draws on, if copying pixels there is certain to give what drawing anew
 * gives; null otherwise: on anything that is no image of one of the proven formats, and wherever
 * the painter transforms by more than whole pixels, clips, blends in some other way or is
 * translucent.
 */
const QImage *copyTarget(const QPainter &painter);

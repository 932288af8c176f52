// SPDX-License-Identifier: MIT
// How well text can be read where it is painted.
#pragma once

#include "toolkit/readabletext.h"

#include <QColor>
#include <QImage>
#include <QWidget>

#include <algorithm>
#include <map>

/// Contrast between the background of a box, which is most of it, and the strongest spot of its text.
inline double paintedContrast(QWidget &box)
{
    constexpr int frame = 4;
    const QImage picture = box.grab(box.rect().adjusted(frame, frame, -frame, -frame)).toImage();
    std::map<QRgb, int> spots;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++spots[picture.pixel(x, y)];
    }
    const auto most = [](const auto &left, const auto &right) { return left.second < right.second; };
    const QColor background(std::max_element(spots.begin(), spots.end(), most)->first);
    double strongest = 1;
    for (const auto &[spot, count] : spots)
        strongest = std::max(strongest, toolkit::contrast(QColor(spot), background));
    return strongest;
}

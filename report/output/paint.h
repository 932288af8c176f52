// SPDX-License-Identifier: MIT
// Paints a laid out page.
#pragma once

class QPainter;

namespace report {

class Fonts;
struct Page;

/// Through a painter whose logical unit is the layout's unit, with the sheet's corner at its origin.
void paintPage(QPainter &painter, const Page &page, const Fonts &fonts);

} // namespace report

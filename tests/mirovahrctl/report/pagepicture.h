#pragma once

#include <QImage>
#include <QRgb>

/// What the tests look for in pictures of the reports' pages.
namespace PagePicture {

constexpr QRgb kRed = qRgb(0xb3, 0x26, 0x1e); ///< the bar beside a verdict with findings
constexpr QRgb kGreen = qRgb(0x1d, 0x6b, 0x3a); ///< the bar beside a good one
constexpr QRgb kTableHead = qRgb(0xee, 0xf1, 0xf5);
constexpr QRgb kPaper = qRgb(0xff, 0xff, 0xff);

/// How many pixels have this colour.
int count(const QImage &picture, QRgb colour);

/// Whether nothing but paper is in this column of pixels.
bool isEmptyColumn(const QImage &picture, int x);

} // namespace PagePicture

#include "tests/mirovahrctl/report/pagepicture.h"

namespace PagePicture {

int count(const QImage &picture, QRgb colour)
{
    int pixels = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            pixels += picture.pixel(x, y) == colour ? 1 : 0;
    }
    return pixels;
}

bool isEmptyColumn(const QImage &picture, int x)
{
    for (int y = 0; y < picture.height(); ++y) {
        if (picture.pixel(x, y) != kPaper)
            return false;
    }
    return true;
}

} // namespace PagePicture

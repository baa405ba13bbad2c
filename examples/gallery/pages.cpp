// SPDX-License-Identifier: MIT
#include "pages.h"

QVector<PageEntry> galleryPages()
{
    return {
        { QStringLiteral("Start-up"), createStartUpPage },
        { QStringLiteral("Sliders"), createSlidersPage },
    };
}

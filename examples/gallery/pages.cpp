// SPDX-License-Identifier: MIT
#include "pages.h"

QVector<PageEntry> galleryPages()
{
    return {
        { QStringLiteral("Overview"), createOverviewPage },
        { QStringLiteral("Start-up"), createStartUpPage },
        { QStringLiteral("Buttons"), createButtonsPage },
        { QStringLiteral("Icon buttons"), createIconButtonsPage },
        { QStringLiteral("Line edits"), createLineEditsPage },
        { QStringLiteral("Shortcuts"), createShortcutsPage },
        { QStringLiteral("Text fitting"), createTextFittingPage },
        { QStringLiteral("Switches"), createSwitchesPage },
        { QStringLiteral("Sliders"), createSlidersPage },
        { QStringLiteral("Control bar"), createControlBarPage },
        { QStringLiteral("Flow grid"), createFlowGridPage },
        { QStringLiteral("Flex panel"), createFlexPanelPage },
        { QStringLiteral("Forms"), createFormsPage },
    };
}

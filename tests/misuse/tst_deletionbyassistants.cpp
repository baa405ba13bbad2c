// SPDX-License-Identifier: MIT
#include "subjects.h"
#include "testprogram.h"

#include <QTest>

using namespace DeletionTable;

/** Listeners to updates of accessibility that delete the widget that they hear of. */
class TestDeletionByAssistants : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
};

void TestDeletionByAssistants::survives_data()
{
    addRows(everySubject(), Listener::UpdateHandler);
}

void TestDeletionByAssistants::survives()
{
    check(everySubject(), Listener::UpdateHandler);
}

ADD_TEST(TestDeletionByAssistants, Application)
#include "tst_deletionbyassistants.moc"

// SPDX-License-Identifier: MIT
#include "subjects.h"
#include "testprogram.h"

#include <QTest>

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
    DeletionTable::addRows(DeletionTable::everySubject(), DeletionTable::Listener::UpdateHandler);
}

void TestDeletionByAssistants::survives()
{
    DeletionTable::check(DeletionTable::everySubject(), DeletionTable::Listener::UpdateHandler);
}

ADD_TEST(TestDeletionByAssistants, DeletionTable::Application)
#include "tst_deletionbyassistants.moc"

// SPDX-License-Identifier: MIT
#include "subjects.h"
#include "testprogram.h"

#include <QTest>

/** Event filters that delete the widget whose event they see, and consume the event. */
class TestDeletionByFilters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
};

void TestDeletionByFilters::survives_data()
{
    DeletionTable::addRows(DeletionTable::everySubject(), DeletionTable::Listener::EventFilter);
}

void TestDeletionByFilters::survives()
{
    DeletionTable::check(DeletionTable::everySubject(), DeletionTable::Listener::EventFilter);
}

ADD_TEST(TestDeletionByFilters, DeletionTable::Application)
#include "tst_deletionbyfilters.moc"

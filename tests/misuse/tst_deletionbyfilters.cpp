// SPDX-License-Identifier: MIT
#include "subjects.h"
#include "testprogram.h"

#include <QTest>

using namespace DeletionTable;

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
    addRows(everySubject(), Listener::EventFilter);
}

void TestDeletionByFilters::survives()
{
    check(everySubject(), Listener::EventFilter);
}

ADD_TEST(TestDeletionByFilters, Application)
#include "tst_deletionbyfilters.moc"

// SPDX-License-Identifier: MIT
#include "captionscene.h"
#include "testprogram.h"

#include <QApplication>
#include <QFile>
#include <QFontDatabase>
#include <QTemporaryDir>
#include <QTest>

/** Captions in a program that has one application after another. */
class TestCaptionApplications : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noticesTheFontsOfEachApplication();
};

void TestCaptionApplications::noticesTheFontsOfEachApplication()
{
    const QTemporaryDir runtimeFolder; // an application without one warns
    qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtimeFolder.path()));
    const Scene scene = sceneOf(QStringLiteral("Fonts"));
    for (int round = 0; round < 2; ++round) {
        int count = 1;
        char name[] = "application";
        char *arguments[] = { name, nullptr };
        const QApplication application(count, arguments);
        QVERIFY(copiesIn(scene, {}, 3) > 0);
        QVERIFY(QFontDatabase::addApplicationFont(QStringLiteral(OLV_TEST_FONT)) >= 0);
        QCOMPARE(copiesIn(scene, {}, 1), 0);
    }
}

ADD_TEST(TestCaptionApplications, NoApplication)
#include "tst_captionapplications.moc"

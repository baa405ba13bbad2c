// SPDX-License-Identifier: MIT
// A shortcut editor on a table of a database, on a server that can grab combinations.
#include "recordform.h"
#include "shortcutkeys.h"
#include "testprogram.h"

#include <QStandardItemModel>
#include <QTest>

#include <memory>

namespace {

constexpr int hurry = 20; // milliseconds

} // namespace

Q_DECLARE_METATYPE(QDataWidgetMapper::SubmitPolicy)

class TestRecordOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_database = std::make_unique<RecordDatabase>();
        QVERIFY(m_database->isOpen());
    }
    void cleanup()
    {
        m_database.reset();
    }
    void showsTheShortcutOfEachRecord();
    void showsShortcutsWithEachModifier_data();
    void showsShortcutsWithEachModifier();
    void storesTheShortcutThatIsPressed_data();
    void storesTheShortcutThatIsPressed();

private:
    static QString shown(const RecordForm &form)
    {
        const OlvShortcut *shortcut = form.keys->shortcut();
        return shortcut ? form.keys->getValue().toString() : QString();
    }

    std::unique_ptr<RecordDatabase> m_database;
};

void TestRecordOnServer::showsTheShortcutOfEachRecord()
{
    const QVector<QVariantList> before = RecordDatabase::stored();
    RecordForm form;
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(shown(form), QStringLiteral("Ctrl+F5"));
        form.mapper.toNext();
        QTest::qWait(hurry);
        QCOMPARE(shown(form), QString()); // "no keys" names no combination
        form.mapper.toNext();
        QTest::qWait(hurry);
        QCOMPARE(shown(form), QString());
        form.mapper.toPrevious();
        QTest::qWait(hurry);
        form.mapper.toPrevious();
        QTest::qWait(hurry);
    }
    QVERIFY(form.mapper.submit());
    QCOMPARE(RecordDatabase::stored(), before);
}

void TestRecordOnServer::showsShortcutsWithEachModifier_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : { "F9", "Ctrl+F9", "Shift+F9", "Alt+F9", "Meta+F9", "Ctrl+Alt+A" }) {
        QTest::newRow(text) << QString::fromLatin1(text);
    }
}

void TestRecordOnServer::showsShortcutsWithEachModifier()
{
    QFETCH(QString, text);
    QStandardItemModel model(1, 1);
    model.setData(model.index(0, 0), text);
    const OlvValueDelegate delegate;
    OlvShortcutEdit edit(nullptr);
    delegate.setEditorData(&edit, model.index(0, 0));
    QVERIFY(edit.shortcut());
    QCOMPARE(edit.getValue(), QVariant(text));
}

void TestRecordOnServer::storesTheShortcutThatIsPressed_data()
{
    QTest::addColumn<QDataWidgetMapper::SubmitPolicy>("policy");
    QTest::addColumn<int>("row");
    for (int row = 0; row < 3; ++row) {
        QTest::addRow("record %d, auto", row) << QDataWidgetMapper::AutoSubmit << row;
        QTest::addRow("record %d, manual", row) << QDataWidgetMapper::ManualSubmit << row;
    }
}

void TestRecordOnServer::storesTheShortcutThatIsPressed()
{
    QFETCH(QDataWidgetMapper::SubmitPolicy, policy);
    QFETCH(int, row);
    RecordForm form(policy);
    form.show();
    QVERIFY(QTest::qWaitForWindowActive(&form));
    form.mapper.setCurrentIndex(row);
    form.keys->setFocus();
    QTRY_VERIFY(form.keys->hasFocus());
    QVector<QVariantList> expected = RecordDatabase::stored();

    constexpr quint32 symbolF6 = symbolF5 + 1;
    RealInput input;
    QVERIFY(input.isValid());
    pressWithControl(input, symbolF6);
    QTRY_COMPARE(shown(form), QStringLiteral("Ctrl+F6"));
    if (policy == QDataWidgetMapper::ManualSubmit) {
        QCOMPARE(RecordDatabase::stored(), expected);
        QVERIFY(form.mapper.submit());
    }
    expected[row][KeysColumn] = QStringLiteral("Ctrl+F6"); // and nothing else has changed
    QCOMPARE(RecordDatabase::stored(), expected);

    QTest::qWait(hurry);
    row == 2 ? form.mapper.toPrevious() : form.mapper.toNext();
    QTest::qWait(hurry);
    QVERIFY(shown(form) != QLatin1String("Ctrl+F6"));
    row == 2 ? form.mapper.toNext() : form.mapper.toPrevious();
    QCOMPARE(shown(form), QStringLiteral("Ctrl+F6"));
    QVERIFY(form.mapper.submit());
    QCOMPARE(RecordDatabase::stored(), expected);
}

ADD_TEST(TestRecordOnServer, QApplication)
#include "tst_recordonserver.moc"

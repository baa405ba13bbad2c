// SPDX-License-Identifier: MIT
#include "exampleprogram.h"
#include "pixels.h"
#include "testprogram.h"

#include <QTest>

namespace {

constexpr char milk[] = "[a]\nplace=@Point(200 150)\ntext=milk\n";
constexpr char milkAndBread[] = "[a]\nplace=@Point(200 150)\ntext=milk\n\n"
                                "[b]\nplace=@Point(600 300)\ntext=bread\n";
constexpr QPoint pinButton(23, 27);
constexpr QPoint addButton(211, 27);
constexpr QPoint removeButton(237, 27);
constexpr QPoint writing(100, 150);

QString noteTitle()
{
    return QStringLiteral("Note");
}

QString store()
{
    return QStringLiteral("OlvWidgets/stickynote.conf");
}

} // namespace

class TestStickyNote : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textIsStoredAsItIsWritten();
    void severalComeBackToTheirPlaces();
    void placeIsStoredWhereItIsDraggedTo();
    void oneThatIsThrownAwayDoesNotComeBack();
    void anotherComesBackAsWell();
    void pinKeepsItOnTopOrNot();
};

/** Nothing closes the window: the program is ended from outside. */
void TestStickyNote::textIsStoredAsItIsWritten()
{
    ExampleProgram note(QStringLiteral(OLV_STICKYNOTE));
    const auto isInviting = [&] {
        return colorCount(note.picture().copy(60, 45, 70, 20)) > 1;
    };
    QVERIFY(note.start());
    QTRY_VERIFY_WITH_TIMEOUT(note.findWindow(noteTitle()), patience);
    QTRY_VERIFY_WITH_TIMEOUT(isInviting(), patience);
    // a note is shown first, and put into its place then
    QTRY_COMPARE_WITH_TIMEOUT(note.geometry().topLeft(), QPoint(120, 90), patience);
    note.click(writing);
    QTRY_VERIFY_WITH_TIMEOUT(note.isActive(), patience);
    note.type(QStringLiteral("milk"));
    QTRY_VERIFY2_WITH_TIMEOUT(note.read(store()).contains("text=milk\n"),
                              note.read(store()).constData(), patience);
    note.kill();
    QVERIFY2(note.read(store()).contains("text=milk\n"), note.read(store()).constData());
    QVERIFY2(note.read(store()).contains("place=@Point(120 90)\n"), note.read(store()).constData());

    QVERIFY(note.start());
    QTRY_VERIFY_WITH_TIMEOUT(note.findWindow(noteTitle()), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(note.picture().copy(14, 45, 16, 20)) > 3, patience);
    QVERIFY(!isInviting());
    note.close();
    QVERIFY(note.ends());
    QVERIFY2(note.read(store()).contains("text=milk\n"), note.read(store()).constData());
}

void TestStickyNote::severalComeBackToTheirPlaces()
{
    ExampleProgram notes(QStringLiteral(OLV_STICKYNOTE));
    // what is none of a note's own goes when it stores itself, as it does once it has been moved
    notes.write(store(), QByteArray(milkAndBread).replace("[a]\n", "[a]\nold=1\n"));
    QVERIFY(notes.start());
    QTRY_COMPARE_WITH_TIMEOUT(notes.windowCount(), 2, patience);
    const auto places = [&] {
        QList<QPoint> result;
        for (int i = 0; notes.findWindow(noteTitle(), i); ++i) {
            result << notes.geometry().topLeft();
        }
        return result;
    };
    QTRY_VERIFY_WITH_TIMEOUT(
        places().contains(QPoint(200, 150)) && places().contains(QPoint(600, 300)), patience);
    QTRY_COMPARE_WITH_TIMEOUT(notes.read(store()), QByteArray(milkAndBread), patience);
    notes.kill();
    QCOMPARE(notes.read(store()), QByteArray(milkAndBread));
}

void TestStickyNote::placeIsStoredWhereItIsDraggedTo()
{
    ExampleProgram note(QStringLiteral(OLV_STICKYNOTE));
    note.write(store(), milk);
    QVERIFY(note.start());
    QTRY_VERIFY_WITH_TIMEOUT(note.findWindow(noteTitle()), patience);
    QTRY_COMPARE_WITH_TIMEOUT(note.geometry().topLeft(), QPoint(200, 150), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(note.picture()) > 20, patience);
    note.input().moveTo({ 300, 153 });
    note.input().press();
    for (int i = 1; i <= 5; ++i) {
        note.input().moveTo(QPoint(300, 153) + QPoint(10, 8) * i);
        QTRY_COMPARE_WITH_TIMEOUT(note.geometry().topLeft(), QPoint(200, 150) + QPoint(10, 8) * i,
                                  patience);
    }
    note.input().release();
    QTRY_COMPARE_WITH_TIMEOUT(note.read(store()),
                              QByteArray("[a]\nplace=@Point(250 190)\ntext=milk\n"), patience);
}

void TestStickyNote::oneThatIsThrownAwayDoesNotComeBack()
{
    ExampleProgram notes(QStringLiteral(OLV_STICKYNOTE));
    notes.write(store(), milkAndBread);
    QVERIFY(notes.start());
    QTRY_COMPARE_WITH_TIMEOUT(notes.windowCount(), 2, patience);
    const auto findSecond = [&] {
        for (int i = 0; notes.findWindow(noteTitle(), i); ++i) {
            if (notes.geometry().topLeft() == QPoint(600, 300)) {
                return true;
            }
        }
        return false;
    };
    QTRY_VERIFY_WITH_TIMEOUT(findSecond(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(notes.picture()) > 20, patience);
    notes.click(removeButton);
    QTRY_COMPARE_WITH_TIMEOUT(notes.windowCount(), 1, patience);
    QVERIFY(notes.isRunning());
    notes.kill();
    QCOMPARE(notes.read(store()), QByteArray(milk));
}

void TestStickyNote::anotherComesBackAsWell()
{
    ExampleProgram notes(QStringLiteral(OLV_STICKYNOTE));
    notes.write(store(), milk);
    QVERIFY(notes.start());
    QTRY_VERIFY_WITH_TIMEOUT(notes.findWindow(noteTitle()), patience);
    QTRY_COMPARE_WITH_TIMEOUT(notes.geometry().topLeft(), QPoint(200, 150), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(notes.picture()) > 20, patience);
    notes.click(addButton);
    QTRY_VERIFY_WITH_TIMEOUT(notes.findWindow(noteTitle(), 1), patience);
    QTRY_COMPARE_WITH_TIMEOUT(notes.geometry().topLeft(), QPoint(240, 190), patience);
    notes.click(writing);
    QTRY_VERIFY_WITH_TIMEOUT(notes.isActive(), patience);
    notes.type(QStringLiteral("bread"));
    QTRY_VERIFY2_WITH_TIMEOUT(notes.read(store()).contains("text=bread\n"),
                              notes.read(store()).constData(), patience);
    notes.kill();
    QVERIFY2(notes.read(store()).contains("text=milk\n"), notes.read(store()).constData());
    QVERIFY(notes.start());
    QTRY_COMPARE_WITH_TIMEOUT(notes.windowCount(), 2, patience);
}

void TestStickyNote::pinKeepsItOnTopOrNot()
{
    ExampleProgram note(QStringLiteral(OLV_STICKYNOTE));
    QVERIFY(note.start());
    for (int clicks = 0; clicks < 3; ++clicks) {
        if (clicks > 0) {
            QTRY_VERIFY_WITH_TIMEOUT(colorCount(note.picture()) > 20, patience);
            note.click(pinButton);
        }
        const bool onTop = clicks != 1;
        const auto stays = [&] {
            return note.findWindow(noteTitle()) && note.geometry().topLeft() == QPoint(120, 90)
                && note.property(QStringLiteral("_NET_WM_STATE")).contains("_NET_WM_STATE_ABOVE")
                == onTop;
        };
        QTRY_VERIFY_WITH_TIMEOUT(stays(), patience);
    }
}

ADD_TEST(TestStickyNote, QApplication)
#include "tst_stickynote.moc"

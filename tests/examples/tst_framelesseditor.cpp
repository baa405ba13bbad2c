// SPDX-License-Identifier: MIT
#include "exampleprogram.h"
#include "pixels.h"
#include "testprogram.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <memory>

namespace {

/** The places of the bar's buttons, counted from the window's right edge. */
enum Button { Open = 7, Save = 6, Float = 5, Bottom = 4, Top = 3, Close = 0 };

constexpr QPoint inText(100, 150);

QString editorTitle()
{
    return QStringLiteral("Editor");
}

} // namespace

/** The editor, worked with by its user. */
class TestFramelessEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup();
    void isMovedByItsHeader();
    void staysBelowOrAboveOthers();
    void endsWhenItIsClosedAfloat_data();
    void endsWhenItIsClosedAfloat();
    void asksBeforeUnsavedTextIsLost();
    void savesBeforeItClosesWhenToldSo();
    void asksBeforeAnotherFileIsOpened();
    void remembersTheNameOfItsFile();
    void tellsThatItCouldNotSave();

private:
    void start(const QString &program = QStringLiteral(OLV_FRAMELESSEDITOR),
               const QStringList &options = QStringList(), const QString &name = editorTitle());
    void press(Button button);
    void write(const QString &text);
    void awaitDialog();
    void awaitWindow(const QString &name);
    void answer(const QString &dialog, const QString &file);
    bool hasWindows(int count) const;

    std::unique_ptr<ExampleProgram> m_editor;
};

void TestFramelessEditor::cleanup()
{
    m_editor.reset();
}

void TestFramelessEditor::start(const QString &program, const QStringList &options,
                                const QString &name)
{
    m_editor = std::make_unique<ExampleProgram>(program);
    QVERIFY(m_editor->start(options));
    QTRY_VERIFY_WITH_TIMEOUT(m_editor->findWindow(name), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(m_editor->picture()) > 20, patience);
}

void TestFramelessEditor::press(Button button)
{
    m_editor->click({ -15 - 31 * button, 19 });
}

void TestFramelessEditor::write(const QString &text)
{
    m_editor->click(inText);
    QTRY_VERIFY_WITH_TIMEOUT(m_editor->isActive(), patience);
    m_editor->type(text);
}

/** Waits for a dialog, a question for example, over the window. */
void TestFramelessEditor::awaitDialog()
{
    QTRY_VERIFY_WITH_TIMEOUT(hasWindows(2) && m_editor->isAnotherActive(), patience);
}

/** Waits until there is the window alone again, called by that name now. */
void TestFramelessEditor::awaitWindow(const QString &name)
{
    QTRY_VERIFY_WITH_TIMEOUT(hasWindows(1) && m_editor->findWindow(name) && m_editor->isActive(),
                             patience);
}

/**
 * Answers the dialog of that title, which asks for a file of the current folder. No path is typed:
 * a file dialog selects the folder that is written as yet, when it has read it, and may then take
 * the folder instead of what has been written since.
 */
void TestFramelessEditor::answer(const QString &dialog, const QString &file)
{
    QTRY_VERIFY_WITH_TIMEOUT(m_editor->findWindow(dialog) && m_editor->isActive(), patience);
    m_editor->type(file);
    m_editor->press(QStringLiteral("Return"));
}

bool TestFramelessEditor::hasWindows(int count) const
{
    return m_editor->windowCount() == count;
}

void TestFramelessEditor::isMovedByItsHeader()
{
    start();
    const QRect before = m_editor->geometry();
    const QPoint grip = before.topLeft() + QPoint(200, 15);
    m_editor->input().moveTo(grip);
    m_editor->input().press();
    for (int i = 1; i <= 5; ++i) {
        m_editor->input().moveTo(grip + QPoint(8, 6) * i);
        QTRY_COMPARE_WITH_TIMEOUT(m_editor->geometry(), before.translated(QPoint(8, 6) * i),
                                  patience);
    }
    m_editor->input().release();
    m_editor->close();
    QVERIFY(m_editor->ends());
}

void TestFramelessEditor::staysBelowOrAboveOthers()
{
    start();
    const auto stands = [&](bool below, bool above) {
        const bool isThere = m_editor->findWindow(editorTitle());
        const QByteArray state = m_editor->property(QStringLiteral("_NET_WM_STATE"));
        return isThere && state.contains("_NET_WM_STATE_BELOW") == below
            && state.contains("_NET_WM_STATE_ABOVE") == above
            && colorCount(m_editor->picture()) > 20;
    };
    QTRY_VERIFY_WITH_TIMEOUT(stands(false, false), patience);
    press(Top);
    QTRY_VERIFY_WITH_TIMEOUT(stands(false, true), patience);
    press(Bottom);
    QTRY_VERIFY_WITH_TIMEOUT(stands(true, false), patience);
    press(Bottom);
    QTRY_VERIFY_WITH_TIMEOUT(stands(false, false), patience);
}

void TestFramelessEditor::endsWhenItIsClosedAfloat_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QStringList>("options");
    QTest::addColumn<QString>("name");
    QTest::newRow("editor") << QStringLiteral(OLV_FRAMELESSEDITOR) << QStringList()
                            << editorTitle();
    QTest::newRow("gallery") << QStringLiteral(OLV_GALLERY)
                             << QStringList{ QStringLiteral("--frameless") }
                             << QStringLiteral("OlvWidgets gallery");
}

void TestFramelessEditor::endsWhenItIsClosedAfloat()
{
    QFETCH(QString, program);
    QFETCH(QStringList, options);
    QFETCH(QString, name);
    start(program, options, name);
    press(Float);
    const auto floats = [&] {
        return m_editor->findWindow(name)
            && m_editor->property(QStringLiteral("_NET_WM_WINDOW_TYPE")).contains("_UTILITY")
            && colorCount(m_editor->picture()) > 20;
    };
    QTRY_VERIFY_WITH_TIMEOUT(floats(), patience);
    press(Close);
    QVERIFY(m_editor->ends());
}

void TestFramelessEditor::asksBeforeUnsavedTextIsLost()
{
    start();
    write(QStringLiteral("draft"));
    press(Close);
    awaitDialog();
    m_editor->press(QStringLiteral("Escape"));
    awaitWindow(editorTitle());
    QVERIFY(m_editor->isRunning());

    m_editor->close(); // by the window manager
    awaitDialog();
    m_editor->press(QStringLiteral("Tab")); // from "Save" to "Discard"
    m_editor->press(QStringLiteral("space"));
    QVERIFY(m_editor->ends());
}

void TestFramelessEditor::savesBeforeItClosesWhenToldSo()
{
    start();
    write(QStringLiteral("draft"));
    press(Close);
    awaitDialog();
    m_editor->press(QStringLiteral("Return"));
    answer(QStringLiteral("Save As"), QStringLiteral("draft.txt"));
    QVERIFY(m_editor->ends());
    QCOMPARE(m_editor->read(QStringLiteral("draft.txt")), QByteArray("draft"));
}

void TestFramelessEditor::asksBeforeAnotherFileIsOpened()
{
    start();
    m_editor->write(QStringLiteral("old.txt"), "old");
    write(QStringLiteral("draft"));
    press(Open);
    awaitDialog();
    m_editor->press(QStringLiteral("Escape"));
    awaitWindow(editorTitle());

    press(Open);
    awaitDialog();
    m_editor->press(QStringLiteral("Tab"));
    m_editor->press(QStringLiteral("space"));
    answer(QStringLiteral("Open"), QStringLiteral("old.txt"));
    awaitWindow(QStringLiteral("old.txt"));
    write(QStringLiteral("b"));
    press(Save);
    QTRY_COMPARE_WITH_TIMEOUT(m_editor->read(QStringLiteral("old.txt")), QByteArray("oldb"),
                              patience);
    QVERIFY(hasWindows(1));
}

void TestFramelessEditor::remembersTheNameOfItsFile()
{
    start();
    const QString name = QStringLiteral("note.txt");
    write(QStringLiteral("one"));
    press(Save);
    answer(QStringLiteral("Save As"), name);
    awaitWindow(name);
    QCOMPARE(m_editor->read(name), QByteArray("one"));

    write(QStringLiteral("two"));
    press(Save);
    QTRY_COMPARE_WITH_TIMEOUT(m_editor->read(name), QByteArray("onetwo"), patience);
    QVERIFY(hasWindows(1));
    press(Close); // there is nothing to ask
    QVERIFY(m_editor->ends());
}

void TestFramelessEditor::tellsThatItCouldNotSave()
{
    start();
    const QString name = QStringLiteral("note.txt");
    m_editor->write(name, "old");
    press(Open);
    answer(QStringLiteral("Open"), name);
    awaitWindow(name);
    write(QStringLiteral("er"));
    // root may write to every file, but a folder cannot be written to
    QVERIFY(QFile::remove(m_editor->path(name)) && QDir().mkdir(m_editor->path(name)));
    press(Save);
    awaitDialog();
    m_editor->press(QStringLiteral("Escape"));
    awaitWindow(name);

    // what could not be saved is still asked for, and still there
    press(Close);
    awaitDialog();
    QVERIFY(QDir().rmdir(m_editor->path(name)));
    m_editor->press(QStringLiteral("Return"));
    QVERIFY(m_editor->ends());
    QCOMPARE(m_editor->read(name), QByteArray("older"));
}

ADD_TEST(TestFramelessEditor, QApplication)
#include "tst_framelesseditor.moc"

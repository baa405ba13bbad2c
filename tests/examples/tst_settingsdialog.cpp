// SPDX-License-Identifier: MIT
#include "exampleprogram.h"

#include <QTest>

#include <memory>

namespace {

const QRgb switchedOn = qRgb(19, 206, 102);
const QRgb blue = qRgb(64, 158, 255);
const QRgb white = qRgb(255, 255, 255);
constexpr int saveHeight = 32;
constexpr int sliderHeight = 30;
constexpr int rowHeight = 24 + 18; // a switch, and the gap below it

QString title()
{
    return QStringLiteral("Settings");
}

QString store()
{
    return QStringLiteral("OlvWidgets/settingsdialog.conf");
}

/** Where the Save button lies: what is blue at the bottom. The others lie in its column. */
QPoint saveButton(const QImage &image)
{
    for (int y = image.height() - 1; y >= saveHeight; --y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == blue) {
                const int middle = y - saveHeight / 2;
                while (x > 0 && image.pixel(x - 1, middle) == blue) {
                    --x;
                }
                return { x, y - saveHeight + 1 };
            }
        }
    }
    return {};
}

/** The middle of the white disc within the slider, counted from the slider's left edge. */
int knobCenter(const QImage &image)
{
    const QPoint save = saveButton(image);
    const int row = save.y() - 18 - sliderHeight / 2;
    QList<int> ends; // of whatever is not white
    for (int x = save.x(); x < save.x() + 219; ++x) {
        if ((image.pixel(x, row) == white) != (image.pixel(x + 1, row) == white)) {
            ends << x + 1 - save.x();
        }
    }
    // the track's start, the disc's two, and the track's end
    return ends.size() == 4 ? (ends.at(1) + ends.at(2)) / 2 : -1;
}

} // namespace

/** The settings dialog, worked with by its user. */
class TestSettingsDialog : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void everyValueIsStoredAndLoaded();
    void knobIsAtTheStoredValue_data();
    void knobIsAtTheStoredValue();
    void switchIsStoredAsItWasClickedJustBefore_data();
    void switchIsStoredAsItWasClickedJustBefore();
    void switchIsStoredAsItWasWhileTheDialogOpens();
    void nothingIsStoredWithoutSave();

private:
    void open();
    QPoint switchAt(int row) const;
    bool isOn(int row) const;
    void save();

    std::unique_ptr<ExampleProgram> m_dialog;
};

void TestSettingsDialog::init()
{
    m_dialog = std::make_unique<ExampleProgram>(QStringLiteral(OLV_SETTINGSDIALOG));
}

void TestSettingsDialog::cleanup()
{
    m_dialog.reset();
}

void TestSettingsDialog::open()
{
    m_dialog->input().moveTo({ 1279, 799 }); // a button under the pointer has another colour
    QVERIFY(m_dialog->start());
    QTRY_VERIFY_WITH_TIMEOUT(m_dialog->findWindow(title()) && m_dialog->isActive(), patience);
    QTRY_VERIFY_WITH_TIMEOUT(!saveButton(m_dialog->picture()).isNull(), patience);
}

/** The left half of a switch, which is green when it has come to be on. */
QPoint TestSettingsDialog::switchAt(int row) const
{
    return saveButton(m_dialog->picture()) + QPoint(10, row * rowHeight - 18 - sliderHeight + 12);
}

bool TestSettingsDialog::isOn(int row) const
{
    return m_dialog->picture().pixel(switchAt(row)) == switchedOn;
}

void TestSettingsDialog::save()
{
    m_dialog->click(saveButton(m_dialog->picture()) + QPoint(10, 5));
    QVERIFY(m_dialog->ends());
}

void TestSettingsDialog::everyValueIsStoredAndLoaded()
{
    open();
    QTRY_VERIFY_WITH_TIMEOUT(isOn(-2), patience);
    QVERIFY(!isOn(-1));
    m_dialog->click(switchAt(-3));
    m_dialog->type(QStringLiteral("olive"));
    m_dialog->click(switchAt(-2));
    m_dialog->click(switchAt(-1));
    QTRY_VERIFY_WITH_TIMEOUT(!isOn(-2) && isOn(-1), patience);
    QTRY_COMPARE_WITH_TIMEOUT(knobCenter(m_dialog->picture()), 15 + 60 * 190 / 100, patience);
    const QPoint knob = m_dialog->geometry().topLeft() + saveButton(m_dialog->picture())
        + QPoint(15 + 60 * 190 / 100, -18 - sliderHeight / 2);
    m_dialog->input().moveTo(knob);
    m_dialog->input().press();
    m_dialog->input().moveTo(knob - QPoint(40, 0));
    m_dialog->input().moveTo(knob - QPoint(76 + 5, 0)); // it jumps by 5 as it is pressed
    m_dialog->input().release();
    QTRY_COMPARE_WITH_TIMEOUT(knobCenter(m_dialog->picture()), 15 + 20 * 190 / 100, patience);
    save();
    const QByteArray stored("[General]\nautostart=true\nname=olive\nnotify=false\nvolume=20\n");
    QCOMPARE(m_dialog->read(store()), stored);

    open();
    QTRY_VERIFY_WITH_TIMEOUT(!isOn(-2) && isOn(-1), patience);
    save();
    QCOMPARE(m_dialog->read(store()), stored);
}

void TestSettingsDialog::knobIsAtTheStoredValue_data()
{
    QTest::addColumn<int>("volume");
    for (const int volume : { 0, 25, 60, 100 }) {
        QTest::addRow("%d", volume) << volume;
    }
}

void TestSettingsDialog::knobIsAtTheStoredValue()
{
    QFETCH(int, volume);
    m_dialog->write(store(), "[General]\nvolume=" + QByteArray::number(volume) + '\n');
    open();
    QTRY_COMPARE_WITH_TIMEOUT(knobCenter(m_dialog->picture()), 15 + volume * 190 / 100, patience);
}

void TestSettingsDialog::switchIsStoredAsItWasClickedJustBefore_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("off") << -2 << QByteArray("notify=false\n");
    QTest::newRow("on") << -1 << QByteArray("autostart=true\n");
}

void TestSettingsDialog::switchIsStoredAsItWasClickedJustBefore()
{
    QFETCH(int, row);
    QFETCH(QByteArray, line);
    open();
    QTRY_VERIFY_WITH_TIMEOUT(isOn(-2), patience);
    const QPoint button = saveButton(m_dialog->picture()) + QPoint(10, 5);
    m_dialog->click(switchAt(row));
    // Qt takes two presses for a double click where it has left out the motion between them
    m_dialog->input().moveTo(m_dialog->geometry().topLeft() + button);
    QTest::qWait(50);
    m_dialog->click(button);
    QVERIFY(m_dialog->ends());
    const QByteArray stored = m_dialog->read(store());
    QVERIFY2(stored.contains(line), stored.constData());
}

void TestSettingsDialog::switchIsStoredAsItWasWhileTheDialogOpens()
{
    m_dialog->write(store(), "[General]\nautostart=true\nnotify=true\n");
    QVERIFY(m_dialog->start());
    QTRY_VERIFY_WITH_TIMEOUT(m_dialog->findWindow(title()), patience);
    QTRY_VERIFY_WITH_TIMEOUT(!saveButton(m_dialog->picture()).isNull(), patience);
    save();
    const QByteArray stored = m_dialog->read(store());
    QVERIFY2(stored.contains("autostart=true\n"), stored.constData());
    QVERIFY2(stored.contains("notify=true\n"), stored.constData());
}

void TestSettingsDialog::nothingIsStoredWithoutSave()
{
    open();
    QTRY_VERIFY_WITH_TIMEOUT(isOn(-2), patience);
    m_dialog->click(switchAt(-2));
    QTRY_VERIFY_WITH_TIMEOUT(!isOn(-2), patience);
    m_dialog->close();
    QVERIFY(m_dialog->ends());
    QCOMPARE(m_dialog->read(store()), QByteArray());
}

QTEST_MAIN(TestSettingsDialog)
#include "tst_settingsdialog.moc"

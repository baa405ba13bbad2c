// SPDX-License-Identifier: MIT
#include "exampleprogram.h"
#include "testprogram.h"

#include <QDir>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>

#include <memory>

namespace {

const QRgb switchedOn = qRgb(19, 206, 102);
const QRgb blue = qRgb(64, 158, 255);
const QRgb white = qRgb(255, 255, 255);
constexpr int saveHeight = 32;
constexpr int sliderHeight = 30;
constexpr int rowHeight = 24 + 18; // a switch, and the gap below it

QString settingsTitle()
{
    return QStringLiteral("Settings");
}

/** Where the Save button lies: what is blue at the bottom. The others lie in its column. */
QRect saveButton(const QImage &image)
{
    for (int y = image.height() - 1; y >= saveHeight; --y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == blue) {
                const int middle = y - saveHeight / 2;
                int left = x;
                while (left > 0 && image.pixel(left - 1, middle) == blue) {
                    --left;
                }
                int right = image.width() - 1;
                while (right > left && image.pixel(right, middle) != blue) {
                    --right;
                }
                return { left, y - saveHeight + 1, right - left + 1, saveHeight };
            }
        }
    }
    return {};
}

/** The middle of the white disc within the slider, counted from the slider's left edge. */
int knobCenter(const QImage &image)
{
    const QRect save = saveButton(image);
    const int row = save.y() - 18 - sliderHeight / 2;
    QList<int> ends;
    for (int x = save.left(); x < save.right(); ++x) {
        if ((image.pixel(x, row) == white) != (image.pixel(x + 1, row) == white)) {
            ends << x + 1 - save.left();
        }
    }
    return ends.size() == 2 ? (ends.first() + ends.last()) / 2 : -1;
}

/** Where that disc is at a volume. */
int knobCenterAt(int volume, const QImage &image)
{
    return sliderHeight / 2 + (volume * (saveButton(image).width() - sliderHeight) + 99) / 100;
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
    void isWorkedWithTheKeyboardAlone();

private:
    QString query(const QString &statement) const;
    QString stored() const;
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

/** What the first record of the answer holds; makes the database where there is none. */
QString TestSettingsDialog::query(const QString &statement) const
{
    QStringList values;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
        const QString folder = m_dialog->path(QStringLiteral("OlvWidgets/settingsdialog"));
        QDir().mkpath(folder);
        database.setDatabaseName(folder + QStringLiteral("/settings.sqlite"));
        QSqlQuery query(database);
        if (!database.open() || !query.exec(statement)) {
            values << query.lastError().text();
        } else if (query.next()) {
            for (int column = 0; column < query.record().count(); ++column) {
                values << query.value(column).toString();
            }
        }
    }
    QSqlDatabase::removeDatabase(QLatin1String(QSqlDatabase::defaultConnection));
    return values.join(QLatin1Char('|'));
}

QString TestSettingsDialog::stored() const
{
    return query(QStringLiteral("SELECT name, notify, autostart, volume FROM settings"));
}

void TestSettingsDialog::open()
{
    m_dialog->input().moveTo({ 1279, 799 }); // a button under the pointer has another colour
    QVERIFY(m_dialog->start());
    QTRY_VERIFY_WITH_TIMEOUT(m_dialog->findWindow(settingsTitle()) && m_dialog->isActive(),
                             patience);
    QTRY_VERIFY_WITH_TIMEOUT(!saveButton(m_dialog->picture()).isNull(), patience);
}

/** The left half of a switch, which is green when it has come to be on. */
QPoint TestSettingsDialog::switchAt(int row) const
{
    return saveButton(m_dialog->picture()).topLeft()
        + QPoint(10, row * rowHeight - 18 - sliderHeight + 12);
}

bool TestSettingsDialog::isOn(int row) const
{
    return m_dialog->picture().pixel(switchAt(row)) == switchedOn;
}

void TestSettingsDialog::save()
{
    m_dialog->click(saveButton(m_dialog->picture()).topLeft() + QPoint(10, 5));
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
    const QImage picture = m_dialog->picture();
    QCOMPARE(knobCenter(picture), knobCenterAt(60, picture));
    const QPoint knob = m_dialog->geometry().topLeft() + saveButton(picture).topLeft()
        + QPoint(knobCenterAt(60, picture), -18 - sliderHeight / 2);
    m_dialog->input().moveTo(knob);
    m_dialog->input().press();
    m_dialog->input().moveTo(knob - QPoint(40, 0));
    m_dialog->input().moveTo(knob - QPoint(400, 0));
    m_dialog->input().release();
    QTRY_COMPARE_WITH_TIMEOUT(knobCenter(m_dialog->picture()), sliderHeight / 2, patience);
    save();
    QCOMPARE(stored(), QStringLiteral("olive|0|1|0"));

    open();
    QTRY_VERIFY_WITH_TIMEOUT(!isOn(-2) && isOn(-1), patience);
    save();
    QCOMPARE(stored(), QStringLiteral("olive|0|1|0"));
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
    open();
    save();
    query(QStringLiteral("UPDATE settings SET volume = %1").arg(volume));
    open();
    const QImage picture = m_dialog->picture();
    QCOMPARE(knobCenter(picture), knobCenterAt(volume, picture));
}

void TestSettingsDialog::switchIsStoredAsItWasClickedJustBefore_data()
{
    QTest::addColumn<int>("row");
    QTest::addColumn<QString>("record");
    QTest::newRow("off") << -2 << QStringLiteral("|0|0|60");
    QTest::newRow("on") << -1 << QStringLiteral("|1|1|60");
}

void TestSettingsDialog::switchIsStoredAsItWasClickedJustBefore()
{
    QFETCH(int, row);
    QFETCH(QString, record);
    open();
    QTRY_VERIFY_WITH_TIMEOUT(isOn(-2), patience);
    const QPoint button = saveButton(m_dialog->picture()).topLeft() + QPoint(10, 5);
    m_dialog->click(switchAt(row));
    // Qt takes two presses for a double click where it has left out the motion between them
    m_dialog->input().moveTo(m_dialog->geometry().topLeft() + button);
    QTest::qWait(50);
    m_dialog->click(button);
    QVERIFY(m_dialog->ends());
    QCOMPARE(stored(), record);
}

void TestSettingsDialog::switchIsStoredAsItWasWhileTheDialogOpens()
{
    open();
    save();
    query(QStringLiteral("UPDATE settings SET autostart = 1"));
    m_dialog->input().moveTo({ 1279, 799 });
    QVERIFY(m_dialog->start());
    QTRY_VERIFY_WITH_TIMEOUT(m_dialog->findWindow(settingsTitle()), patience);
    QTRY_VERIFY_WITH_TIMEOUT(!saveButton(m_dialog->picture()).isNull(), patience);
    save();
    QCOMPARE(stored(), QStringLiteral("|1|1|60"));
}

void TestSettingsDialog::nothingIsStoredWithoutSave()
{
    open();
    QTRY_VERIFY_WITH_TIMEOUT(isOn(-2), patience);
    m_dialog->click(switchAt(-2));
    QTRY_VERIFY_WITH_TIMEOUT(!isOn(-2), patience);
    m_dialog->close();
    QVERIFY(m_dialog->ends());
    QCOMPARE(stored(), QStringLiteral("|1|0|60"));
}

void TestSettingsDialog::isWorkedWithTheKeyboardAlone()
{
    open();
    m_dialog->press(QStringLiteral("alt+n"));
    m_dialog->type(QStringLiteral("olive"));
    const QStringList keys{ QStringLiteral("Tab"),  QStringLiteral("space"), // notifications
                            QStringLiteral("Tab"),  QStringLiteral("space"), // start
                            QStringLiteral("Tab"),  QStringLiteral("End"),   // volume
                            QStringLiteral("Left"), QStringLiteral("Tab") }; // save
    for (const QString &key : keys) {
        m_dialog->press(key);
    }
    QTRY_VERIFY_WITH_TIMEOUT(!isOn(-2) && isOn(-1), patience);
    m_dialog->press(QStringLiteral("Return"));
    QVERIFY(m_dialog->ends());
    QCOMPARE(stored(), QStringLiteral("olive|0|1|99"));
}

ADD_TEST(TestSettingsDialog, QApplication)
#include "tst_settingsdialog.moc"

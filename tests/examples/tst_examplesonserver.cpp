// SPDX-License-Identifier: MIT
#include "pixels.h"
#include "realinput.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPixmap>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

namespace {

constexpr int patience = 30000; // milliseconds
const QRgb switchedOn = qRgb(19, 206, 102);
const QRgb buttonBlue = qRgb(64, 158, 255);

/** What the window manager calls its client windows, by their numbers. */
QByteArray windowList()
{
    QProcess list;
    list.start(QStringLiteral("wmctrl"), { QStringLiteral("-l") });
    list.waitForFinished(patience);
    return list.readAllStandardOutput();
}

quintptr activeWindow()
{
    QProcess query;
    query.start(QStringLiteral("xdotool"), { QStringLiteral("getactivewindow") });
    query.waitForFinished(patience);
    return query.readAllStandardOutput().trimmed().toULongLong();
}

} // namespace

/** Each example as its user runs it: started, worked with through the X server, and closed. */
class TestExamplesOnServer : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void opensItsWindowAndClosesWithoutAWord_data();
    void opensItsWindowAndClosesWithoutAWord();
    void settingsAreStoredWhenTheyAreSaved();
    void editorIsMovedByItsHeader();
    void launcherNamesTheTileThatIsClicked();
    void notesComeBackWithTheirTexts();

private:
    void start(const QString &program);
    bool findWindow(const QString &title);
    void closeWindow(const QString &title);
    QImage picture() const;
    QPoint placeOf(QRgb color) const;
    void click(QPoint place);
    QByteArray settings(const QString &name) const;

    std::unique_ptr<QTemporaryDir> m_home;
    std::unique_ptr<QProcess> m_program;
    quintptr m_window = 0;
    RealInput m_input;
};

void TestExamplesOnServer::init()
{
    m_home = std::make_unique<QTemporaryDir>();
    m_input.moveTo({ 1279, 799 }); // out of the way
}

void TestExamplesOnServer::cleanup()
{
    if (m_program) {
        m_program->kill();
        m_program->waitForFinished(patience);
        m_program.reset();
    }
}

void TestExamplesOnServer::start(const QString &program)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_home->path());
    m_program = std::make_unique<QProcess>();
    m_program->setProcessEnvironment(environment);
    m_program->start(program, QStringList());
    QVERIFY(m_program->waitForStarted(patience));
}

/** Looks for the window of that title, and remembers its number. */
bool TestExamplesOnServer::findWindow(const QString &title)
{
    const QRegularExpression line(QStringLiteral("^(0x[0-9a-f]+) +\\S+ \\S+ %1$").arg(title),
                                  QRegularExpression::MultilineOption);
    const QRegularExpressionMatch match = line.match(QString::fromUtf8(windowList()));
    m_window = match.captured(1).toULongLong(nullptr, 16);
    return m_window != 0;
}

void TestExamplesOnServer::closeWindow(const QString &title)
{
    QCOMPARE(QProcess::execute(QStringLiteral("wmctrl"), { QStringLiteral("-c"), title }), 0);
    QVERIFY(m_program->waitForFinished(patience));
    QCOMPARE(m_program->exitStatus(), QProcess::NormalExit);
    QCOMPARE(m_program->exitCode(), 0);
    QCOMPARE(QString::fromUtf8(m_program->readAllStandardError()), QString());
}

QImage TestExamplesOnServer::picture() const
{
    const QRect area = m_input.geometryOf(m_window);
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, area.x(), area.y(), area.width(), area.height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

/** Where in the window a colour comes first, going down the rows. */
QPoint TestExamplesOnServer::placeOf(QRgb color) const
{
    const QImage image = picture();
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color) {
                return { x, y };
            }
        }
    }
    return {};
}

void TestExamplesOnServer::click(QPoint place)
{
    m_input.moveTo(m_input.geometryOf(m_window).topLeft() + place);
    m_input.click();
}

QByteArray TestExamplesOnServer::settings(const QString &name) const
{
    QFile file(m_home->filePath(QStringLiteral("OlvWidgets/%1.conf").arg(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TestExamplesOnServer::opensItsWindowAndClosesWithoutAWord_data()
{
    QTest::addColumn<QString>("program");
    QTest::addColumn<QString>("title");
    QTest::newRow("settingsdialog")
        << QStringLiteral(OLV_SETTINGSDIALOG) << QStringLiteral("Settings");
    QTest::newRow("framelesseditor")
        << QStringLiteral(OLV_FRAMELESSEDITOR) << QStringLiteral("Editor");
    QTest::newRow("launcher") << QStringLiteral(OLV_LAUNCHER) << QStringLiteral("Launcher");
    QTest::newRow("stickynote") << QStringLiteral(OLV_STICKYNOTE) << QStringLiteral("Note");
}

void TestExamplesOnServer::opensItsWindowAndClosesWithoutAWord()
{
    QFETCH(QString, program);
    QFETCH(QString, title);
    start(program);
    QTRY_VERIFY_WITH_TIMEOUT(findWindow(title), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(picture()) > 20, patience);
    const QString pictures = qEnvironmentVariable("OLV_PICTURES");
    if (!pictures.isEmpty()) {
        QTest::qWait(1000); // for what is animated
        QVERIFY(picture().save(QDir(pictures).filePath(
            QStringLiteral("%1.png").arg(QLatin1String(QTest::currentDataTag())))));
    }
    closeWindow(title);
}

void TestExamplesOnServer::settingsAreStoredWhenTheyAreSaved()
{
    start(QStringLiteral(OLV_SETTINGSDIALOG));
    QTRY_VERIFY_WITH_TIMEOUT(findWindow(QStringLiteral("Settings")), patience);
    // the notifications are on once their switch has come to its end
    QTRY_VERIFY_WITH_TIMEOUT(!placeOf(switchedOn).isNull(), patience);
    click(placeOf(switchedOn));
    QTRY_VERIFY_WITH_TIMEOUT(placeOf(switchedOn).isNull(), patience);
    const QImage image = picture();
    QPoint save;
    for (int y = image.height() - 1; y >= 0 && save.isNull(); --y) {
        for (int x = 0; x < image.width() && save.isNull(); ++x) {
            save = image.pixel(x, y) == buttonBlue ? QPoint(x + 10, y - 5) : save;
        }
    }
    QVERIFY(!save.isNull());
    click(save);
    QVERIFY(m_program->waitForFinished(patience));
    const QByteArray stored = settings(QStringLiteral("settingsdialog"));
    QVERIFY2(stored.contains("notify=false"), stored.constData());
    QVERIFY2(stored.contains("autostart=false"), stored.constData());
    QVERIFY2(stored.contains("volume=60"), stored.constData());
}

void TestExamplesOnServer::editorIsMovedByItsHeader()
{
    start(QStringLiteral(OLV_FRAMELESSEDITOR));
    QTRY_VERIFY_WITH_TIMEOUT(findWindow(QStringLiteral("Editor")), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(picture()) > 20, patience);
    const QRect before = m_input.geometryOf(m_window);
    const QPoint grip = before.topLeft() + QPoint(200, 15);
    m_input.moveTo(grip);
    m_input.press();
    for (int i = 1; i <= 5; ++i) {
        m_input.moveTo(grip + QPoint(8, 6) * i);
        QTRY_COMPARE_WITH_TIMEOUT(m_input.geometryOf(m_window), before.translated(QPoint(8, 6) * i),
                                  patience);
    }
    m_input.release();
    closeWindow(QStringLiteral("Editor"));
}

void TestExamplesOnServer::launcherNamesTheTileThatIsClicked()
{
    start(QStringLiteral(OLV_LAUNCHER));
    QTRY_VERIFY_WITH_TIMEOUT(findWindow(QStringLiteral("Launcher")), patience);
    QTRY_VERIFY_WITH_TIMEOUT(colorCount(picture()) > 20, patience);
    const auto status = [this] {
        const QImage image = picture();
        return image.copy(0, image.height() - 30, image.width(), 30);
    };
    const QImage before = status();
    click({ 60, 60 });
    m_input.moveTo({ 1279, 799 });
    QTRY_VERIFY_WITH_TIMEOUT(status() != before, patience);
    closeWindow(QStringLiteral("Launcher"));
}

void TestExamplesOnServer::notesComeBackWithTheirTexts()
{
    // the end of the line that invites to write, and the place of a first letter
    const auto isInviting = [this] {
        return colorCount(picture().copy(60, 45, 70, 20)) > 1;
    };
    const auto hasLetter = [this] {
        return colorCount(picture().copy(14, 45, 16, 20)) > 3;
    };
    start(QStringLiteral(OLV_STICKYNOTE));
    QTRY_VERIFY_WITH_TIMEOUT(findWindow(QStringLiteral("Note")), patience);
    QTRY_VERIFY_WITH_TIMEOUT(isInviting(), patience);
    // a note is shown first, and put into its place then
    QTRY_COMPARE_WITH_TIMEOUT(m_input.geometryOf(m_window).topLeft(), QPoint(120, 90), patience);
    click({ 100, 120 });
    QTRY_COMPARE_WITH_TIMEOUT(activeWindow(), m_window, patience);
    const quint32 symbolOfM = 'm';
    m_input.pressKey(symbolOfM);
    m_input.releaseKey(symbolOfM);
    QTRY_VERIFY_WITH_TIMEOUT(!isInviting(), patience);
    closeWindow(QStringLiteral("Note"));
    QCOMPARE(settings(QStringLiteral("stickynote")), QByteArray("[General]\nnotes=m\n"));

    start(QStringLiteral(OLV_STICKYNOTE));
    QTRY_VERIFY_WITH_TIMEOUT(findWindow(QStringLiteral("Note")), patience);
    QTRY_VERIFY_WITH_TIMEOUT(hasLetter(), patience);
    QVERIFY(!isInviting());
    closeWindow(QStringLiteral("Note"));
    QCOMPARE(settings(QStringLiteral("stickynote")), QByteArray("[General]\nnotes=m\n"));
}

QTEST_MAIN(TestExamplesOnServer)
#include "tst_examplesonserver.moc"

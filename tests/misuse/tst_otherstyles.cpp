// SPDX-License-Identifier: MIT
#include "deferred.h"
#include "everywidget.h"
#include "mouse.h"
#include "pixels.h"
#include "pointer.h"
#include "testprogram.h"
#include "unheard.h"

#include <QApplication>
#include <QPointer>
#include <QStyle>
#include <QStyleFactory>
#include <QTest>

#include <memory>

namespace {

/** A widget in a window, to which things are done under a style. */
class StyledScene
{
public:
    explicit StyledScene(int kind)
        : widget(everyWidget().at(kind).make(&window))
    {
        window.resize(250, 150);
        window.show();
    }

    /** The pixels of the widget alone, as they are after all that is put off. */
    QImage picture()
    {
        QCoreApplication::processEvents();
        return pictureOf(*widget);
    }

    QWidget window;
    QWidget *widget;
};

void play(StyledScene &scene)
{
    QWidgetList widgets = scene.widget->findChildren<QWidget *>();
    widgets.prepend(scene.widget);
    for (QWidget *widget : qAsConst(widgets)) {
        Pointer::enter(*widget);
        Mouse::press(widget, { 5, 5 });
    }
    QVERIFY(!scene.window.grab().isNull());
    for (QWidget *widget : qAsConst(widgets)) {
        Mouse::release(widget, { 5, 5 });
        Pointer::leave(*widget);
    }
    scene.widget->resize(scene.widget->size() + QSize(30, 20));
    scene.widget->setEnabled(false);
    QVERIFY(!scene.window.grab().isNull());
    scene.widget->setEnabled(true);
    QVERIFY(!scene.window.grab().isNull());
}

/** Whether the library draws all of the widget itself, whatever the style. */
bool isSelfDrawn(const QWidget *widget)
{
    return qobject_cast<const OlvWidget *>(widget) || qobject_cast<const OlvFlexWidget *>(widget);
}

} // namespace

/** The widgets under styles of the desktops that they may come to run on. */
class TestOtherStyles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void initTestCase_data();
    void init();
    void cleanup();
    void standsWhatIsDoneToIt_data();
    void standsWhatIsDoneToIt();
    void looksTheSame_data();
    void looksTheSame();
    void standsAnotherStyle_data();
    void standsAnotherStyle();

private:
    std::unique_ptr<Unheard> m_unheard;
    QString m_usual;
};

void TestOtherStyles::initTestCase()
{
    m_usual = QApplication::style()->objectName();
}

void TestOtherStyles::initTestCase_data()
{
    QTest::addColumn<QString>("style");
    for (const char *name : { "Fusion", "Windows", "Breeze", "kvantum" }) {
        const QString style = QString::fromLatin1(name);
        if (QStyleFactory::keys().contains(style, Qt::CaseInsensitive)) {
            QTest::newRow(name) << style;
        } else {
            qInfo("the style %s is not installed", name);
        }
    }
}

void TestOtherStyles::init()
{
    // said of a switch that is clicked again before its first step, as documented
    m_unheard = std::make_unique<Unheard>(
        QStringList{ QStringLiteral("QObject::killTimer(): Error: timer id") });
}

void TestOtherStyles::cleanup()
{
    QApplication::setStyle(m_usual);
    runDeferred();
    m_unheard.reset();
}

void TestOtherStyles::standsWhatIsDoneToIt_data()
{
    QTest::addColumn<int>("kind");
    for (int i = 0; i < everyWidget().size(); ++i) {
        QTest::newRow(everyWidget().at(i).name) << i;
    }
}

void TestOtherStyles::standsWhatIsDoneToIt()
{
    QFETCH_GLOBAL(QString, style);
    QFETCH(int, kind);
    QApplication::setStyle(style);
    StyledScene scene(kind);
    play(scene);
    const QPointer<QWidget> widget(scene.widget);
    delete scene.widget;
    QVERIFY(widget.isNull());
    QCoreApplication::processEvents();
    QVERIFY(!scene.window.grab().isNull());
}

void TestOtherStyles::looksTheSame_data()
{
    standsWhatIsDoneToIt_data();
}

void TestOtherStyles::looksTheSame()
{
    QFETCH_GLOBAL(QString, style);
    QFETCH(int, kind);
    StyledScene usual(kind);
    if (!isSelfDrawn(usual.widget)) {
        return;
    }
    const QImage atRest = usual.picture();
    Pointer::enter(*usual.widget);
    const QImage hovered = usual.picture();
    QApplication::setStyle(style);
    StyledScene other(kind);
    COMPARE_PICTURES(other.picture(), atRest);
    Pointer::enter(*other.widget);
    COMPARE_PICTURES(other.picture(), hovered);
}

void TestOtherStyles::standsAnotherStyle_data()
{
    standsWhatIsDoneToIt_data();
}

void TestOtherStyles::standsAnotherStyle()
{
    QFETCH_GLOBAL(QString, style);
    QFETCH(int, kind);
    StyledScene scene(kind);
    const QSize size = scene.widget->size();
    for (const QString &next : { style, m_usual }) {
        QApplication::setStyle(next);
        play(scene);
    }
    const std::unique_ptr<QStyle> own(QStyleFactory::create(style));
    scene.widget->setStyle(own.get());
    play(scene);
    scene.widget->setStyle(nullptr);
    play(scene);
    QApplication::setStyle(m_usual);
    scene.widget->resize(size);
    QCOMPARE(scene.widget->size(), size);
    QVERIFY(!scene.window.grab().isNull());
}

ADD_TEST(TestOtherStyles, QApplication)
#include "tst_otherstyles.moc"

// SPDX-License-Identifier: MIT
#include "testprogram.h"

#include <OlvControlBar>

#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QSpacerItem>
#include <QTest>

#include <limits>

namespace {

QList<QChar> icons(int count)
{
    QList<QChar> glyphs;
    for (int i = 0; i < count; ++i) {
        glyphs.append(QChar('A' + i));
    }
    return glyphs;
}

/** A bar with its buttons by name, and a record of what it tells. */
class Bar : public OlvControlBar
{
public:
    explicit Bar(const QStringList &tips = QStringList(), int iconCount = 12)
        : OlvControlBar(icons(iconCount), nullptr, tips)
        , tipCount(int(tips.size()))
    {
        connect(this, &OlvControlBar::changed, this, [this](WindowState state, bool checked) {
            record.append(QStringLiteral("changed %1 %2").arg(state).arg(checked));
        });
        connect(this, &OlvControlBar::custom, this,
                [this](int index) { record.append(QStringLiteral("custom %1").arg(index)); });
    }
    QPushButton *button(int place) const
    {
        return qobject_cast<QPushButton *>(layout()->itemAt(1 + place)->widget());
    }
    QPushButton *windowButton(WindowState state) const
    {
        return button(tipCount + state);
    }

    QStringList record;
    int tipCount;
};

const char *const actionSheet =
    "QPushButton{border:none;color:rgb(198,198,198);}QPushButton:hover{color:rgb(32,32,32);"
    "background-color:rgb(198,198,198)}";
const char *const toggleSheet =
    "QPushButton{border:none;color:rgb(198,198,198)}QPushButton:hover{color:rgb(32,32,32);"
    "background-color:rgb(198,198,198)}QPushButton:checked{color:rgb(32,32,32)}";

} // namespace

class TestControlBar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void namesItsButtons();
    void statesHaveTheirNumbers();
    void isARowAtTheRightEnd();
    void windowButtonsHaveTheirLooks_data();
    void windowButtonsHaveTheirLooks();
    void applicationButtonsComeFirst();
    void tellsMinimiseAndCloseAlwaysAsTrue();
    void tellsTheNewStateOfToggles();
    void maximiseChangesGlyphAndTipAfterTelling();
    void topAndBottomExcludeEachOtherSilently();
    void changedComesBeforeTheExclusion();
    void tellsApplicationButtonsByTheirIndex();
    void keepsItsStateWhenOthersMaximise();
    void readsTheIndexAtEachClick();
    void shortIconListsLeaveButtonsBlank();
    void formsGetGlyphsAndBracesNone();
    void survivesAClickWhileAButtonIsDestroyed();
};

void TestControlBar::statesHaveTheirNumbers()
{
    QCOMPARE(int(OlvControlBar::Float), 0);
    QCOMPARE(int(OlvControlBar::Bottom), 1);
    QCOMPARE(int(OlvControlBar::Top), 2);
    QCOMPARE(int(OlvControlBar::Min), 3);
    QCOMPARE(int(OlvControlBar::Max), 4);
    QCOMPARE(int(OlvControlBar::Close), 5);
}

void TestControlBar::isARowAtTheRightEnd()
{
    QWidget parent;
    OlvControlBar bar(icons(7), &parent, {});
    QCOMPARE(bar.parentWidget(), &parent);
    QCOMPARE(bar.minimumHeight(), 25);
    QCOMPARE(bar.maximumHeight(), 25);
    auto *layout = qobject_cast<QHBoxLayout *>(bar.layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(layout->spacing(), QHBoxLayout(&parent).spacing());
    QCOMPARE(layout->count(), 7);
    const QSpacerItem *spacer = layout->itemAt(0)->spacerItem();
    QVERIFY(spacer);
    QCOMPARE(spacer->sizeHint(), QSize(25, 25));
    QCOMPARE(spacer->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(spacer->sizePolicy().verticalPolicy(), QSizePolicy::Minimum);

    bar.resize(500, 25);
    layout->activate();
    const QWidget *close = layout->itemAt(6)->widget();
    QCOMPARE(close->geometry(), QRect(475, 0, 25, 25));
}

void TestControlBar::windowButtonsHaveTheirLooks_data()
{
    QTest::addColumn<int>("state");
    QTest::addColumn<QString>("tip");
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QString>("sheet");
    const QString action = QLatin1String(actionSheet);
    const QString toggle = QLatin1String(toggleSheet);
    QTest::newRow("float") << 0 << QStringLiteral("悬浮") << true << toggle;
    QTest::newRow("bottom") << 1 << QStringLiteral("置底") << true << toggle;
    QTest::newRow("top") << 2 << QStringLiteral("置顶") << true << toggle;
    QTest::newRow("minimise") << 3 << QStringLiteral("最小化") << false << action;
    QTest::newRow("maximise") << 4 << QStringLiteral("最大化") << true << action;
    QTest::newRow("close") << 5 << QStringLiteral("关闭") << false << action;
}

void TestControlBar::windowButtonsHaveTheirLooks()
{
    QFETCH(int, state);
    QFETCH(QString, tip);
    QFETCH(bool, checkable);
    QFETCH(QString, sheet);
    const Bar bar;
    const QPushButton *button = bar.button(state);
    QCOMPARE(button->text(), QString(QChar('A' + state)));
    QCOMPARE(button->toolTip(), tip);
    QCOMPARE(button->isCheckable(), checkable);
    QVERIFY(!button->isChecked());
    QCOMPARE(button->styleSheet(), sheet);
    QCOMPARE(button->minimumSize(), QSize(25, 25));
    QCOMPARE(button->maximumSize(), QSize(25, 25));
    QCOMPARE(button->property("index"), QVariant(state));
    QCOMPARE(button->property("index").userType(), int(QMetaType::Int));
    QCOMPARE(button->font().family(), QStringLiteral("FontAwesome"));
    QCOMPARE(button->font().pointSize(), 8);
    const bool isMaximise = state == OlvControlBar::Max;
    QCOMPARE(button->property("max").isValid(), isMaximise);
    if (isMaximise) {
        QCOMPARE(button->property("max").userType(), int(QMetaType::QChar));
        QCOMPARE(button->property("max").toChar(), QChar(u'E'));
        QCOMPARE(button->property("normal").toChar(), QChar(u'G'));
    }
}

void TestControlBar::applicationButtonsComeFirst()
{
    const Bar bar({ QStringLiteral("one"), QStringLiteral("two") });
    QCOMPARE(bar.layout()->count(), 1 + 2 + 6);
    for (int i = 0; i < 2; ++i) {
        const QPushButton *button = bar.button(i);
        QCOMPARE(button->text(), QString(QChar('H' + i)));
        QCOMPARE(button->toolTip(), i == 0 ? QStringLiteral("one") : QStringLiteral("two"));
        QCOMPARE(button->property("index"), QVariant(i));
        QCOMPARE(button->styleSheet(), QLatin1String(actionSheet));
        QVERIFY(!button->isCheckable());
        QCOMPARE(button->minimumSize(), QSize(25, 25));
        QCOMPARE(button->font().pointSize(), 8);
    }
    QCOMPARE(bar.button(2)->toolTip(), QStringLiteral("悬浮"));
}

void TestControlBar::tellsMinimiseAndCloseAlwaysAsTrue()
{
    Bar bar;
    for (int i = 0; i < 2; ++i) {
        bar.windowButton(OlvControlBar::Min)->click();
        bar.windowButton(OlvControlBar::Close)->click();
    }
    QCOMPARE(bar.record,
             QStringList({ QStringLiteral("changed 3 1"), QStringLiteral("changed 5 1"),
                           QStringLiteral("changed 3 1"), QStringLiteral("changed 5 1") }));
}

void TestControlBar::tellsTheNewStateOfToggles()
{
    Bar bar;
    for (const auto state : { OlvControlBar::Float, OlvControlBar::Bottom, OlvControlBar::Top }) {
        bar.record.clear();
        bar.windowButton(state)->click();
        bar.windowButton(state)->click();
        QCOMPARE(bar.record,
                 QStringList({ QStringLiteral("changed %1 1").arg(state),
                               QStringLiteral("changed %1 0").arg(state) }));
    }
}

void TestControlBar::maximiseChangesGlyphAndTipAfterTelling()
{
    Bar bar;
    QPushButton *button = bar.windowButton(OlvControlBar::Max);
    QStringList texts;
    connect(&bar, &OlvControlBar::changed, this, [&] { texts.append(button->text()); });
    button->click();
    QCOMPARE(button->text(), QStringLiteral("G"));
    QCOMPARE(button->toolTip(), QStringLiteral("还原"));
    button->click();
    QCOMPARE(button->text(), QStringLiteral("E"));
    QCOMPARE(button->toolTip(), QStringLiteral("最大化"));
    QCOMPARE(bar.record,
             QStringList({ QStringLiteral("changed 4 1"), QStringLiteral("changed 4 0") }));
    QCOMPARE(texts, QStringList({ QStringLiteral("E"), QStringLiteral("G") }));
}

void TestControlBar::topAndBottomExcludeEachOtherSilently()
{
    Bar bar;
    QPushButton *bottom = bar.windowButton(OlvControlBar::Bottom);
    QPushButton *top = bar.windowButton(OlvControlBar::Top);
    bottom->click();
    top->click();
    QVERIFY(!bottom->isChecked());
    QVERIFY(top->isChecked());
    bottom->click();
    QVERIFY(bottom->isChecked());
    QVERIFY(!top->isChecked());
    bottom->click();
    QCOMPARE(bar.record,
             QStringList({ QStringLiteral("changed 1 1"), QStringLiteral("changed 2 1"),
                           QStringLiteral("changed 1 1"), QStringLiteral("changed 1 0") }));
    bar.windowButton(OlvControlBar::Float)->click();
    top->click();
    QVERIFY(bar.windowButton(OlvControlBar::Float)->isChecked());
}

void TestControlBar::changedComesBeforeTheExclusion()
{
    Bar bar({ QStringLiteral("tip") });
    bar.windowButton(OlvControlBar::Bottom)->setChecked(true);
    bool bottomWhenTold = false;
    connect(&bar, &OlvControlBar::changed, this,
            [&] { bottomWhenTold = bar.windowButton(OlvControlBar::Bottom)->isChecked(); });
    bar.windowButton(OlvControlBar::Top)->click();
    QVERIFY(bottomWhenTold);
    QVERIFY(!bar.windowButton(OlvControlBar::Bottom)->isChecked());
}

void TestControlBar::tellsApplicationButtonsByTheirIndex()
{
    Bar bar({ QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c") });
    bar.button(2)->click();
    bar.button(0)->click();
    bar.windowButton(OlvControlBar::Top)->click();
    QCOMPARE(bar.record,
             QStringList({ QStringLiteral("custom 2"), QStringLiteral("custom 0"),
                           QStringLiteral("changed 2 1") }));
}

void TestControlBar::keepsItsStateWhenOthersMaximise()
{
    QWidget window;
    auto *bar = new OlvControlBar(icons(7), &window);
    window.setWindowState(Qt::WindowMaximized);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto *button = qobject_cast<QPushButton *>(bar->layout()->itemAt(5)->widget());
    QVERIFY(!button->isChecked());
    QCOMPARE(button->text(), QStringLiteral("E"));
}

void TestControlBar::readsTheIndexAtEachClick()
{
    Bar bar({ QStringLiteral("a") });
    bar.button(0)->setProperty("index", 41);
    bar.button(0)->click();
    bar.windowButton(OlvControlBar::Min)->setProperty("index", int(OlvControlBar::Close));
    bar.windowButton(OlvControlBar::Min)->click();
    QCOMPARE(bar.record,
             QStringList({ QStringLiteral("custom 41"), QStringLiteral("changed 5 1") }));
    // what names no window button tells nothing
    bar.record.clear();
    for (const QVariant &index : { QVariant(6), QVariant(-1), QVariant(1000000) }) {
        bar.windowButton(OlvControlBar::Float)->setProperty("index", index);
        bar.windowButton(OlvControlBar::Float)->click();
    }
    QCOMPARE(bar.record, QStringList());
}

void TestControlBar::shortIconListsLeaveButtonsBlank()
{
    for (int count = 0; count < 8; ++count) {
        Bar bar({ QStringLiteral("a") }, count);
        QCOMPARE(bar.button(0)->text().isEmpty(), count < 8);
        QCOMPARE(bar.windowButton(OlvControlBar::Close)->text().isEmpty(), count < 6);
        bar.windowButton(OlvControlBar::Max)->click();
        bar.windowButton(OlvControlBar::Max)->click();
        QVERIFY(!bar.grab().isNull());
        QCOMPARE(bar.record.count(), 2);
    }
}

void TestControlBar::formsGetGlyphsAndBracesNone()
{
    QWidget window;
    const OlvControlBar *inForm = new OlvControlBar(&window);
    const OlvControlBar withoutGlyphs({});
    const auto buttonOf = [](const OlvControlBar &bar, int place) {
        return qobject_cast<QPushButton *>(bar.layout()->itemAt(1 + place)->widget());
    };
    const QString glyphs = QStringLiteral(u"\uf08e\uf103\uf102\uf2d1\uf2d0\uf00d");
    for (int place = 0; place < glyphs.size(); ++place) {
        QCOMPARE(buttonOf(*inForm, place)->text(), QString(glyphs.at(place)));
        QCOMPARE(buttonOf(withoutGlyphs, place)->text(), QString());
    }
    buttonOf(*inForm, OlvControlBar::Max)->click();
    QCOMPARE(buttonOf(*inForm, OlvControlBar::Max)->text(), QString(QChar(0xf2d2)));
}

void TestControlBar::survivesAClickWhileAButtonIsDestroyed()
{
    Bar bar;
    QPushButton *top = bar.windowButton(OlvControlBar::Top);
    QPushButton *bottom = bar.windowButton(OlvControlBar::Bottom);
    bottom->setChecked(true);
    connect(bottom, &QObject::destroyed, top, &QPushButton::click);
    delete bottom;
    QVERIFY(top->isChecked());
    QCOMPARE(bar.record, QStringList({ QStringLiteral("changed 2 1") }));
}

void TestControlBar::namesItsButtons()
{
    const Bar bar({ QStringLiteral("Settings"), QStringLiteral("Help") });
    const OlvControlBar &same = bar;
    QCOMPARE(same.customButton(0), bar.button(0));
    QCOMPARE(same.customButton(1), bar.button(1));
    QVERIFY(!same.customButton(-1));
    QVERIFY(!same.customButton(2)); // which is a window button
    for (const auto state : { OlvControlBar::Float, OlvControlBar::Bottom, OlvControlBar::Top,
                              OlvControlBar::Min, OlvControlBar::Max, OlvControlBar::Close }) {
        QCOMPARE(same.button(state), bar.windowButton(state));
    }
    for (const int invalid : { -1, 6, std::numeric_limits<int>::max() }) {
        QVERIFY(!same.button(OlvControlBar::WindowState(invalid)));
    }

    QPointer<QPushButton> whileItGoes(same.button(OlvControlBar::Min));
    connect(bar.windowButton(OlvControlBar::Min), &QObject::destroyed, this,
            [&] { whileItGoes = same.button(OlvControlBar::Min); });
    delete same.button(OlvControlBar::Min);
    QVERIFY(!whileItGoes);
    QVERIFY(!same.button(OlvControlBar::Min));
    QVERIFY(same.button(OlvControlBar::Max));
    delete same.customButton(0);
    QVERIFY(!same.customButton(0));
    QCOMPARE(same.customButton(1)->toolTip(), QStringLiteral("Help"));
}

ADD_TEST(TestControlBar, QApplication)
#include "tst_controlbar.moc"

// SPDX-License-Identifier: MIT
#include "makewidget.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QLineEdit>
#include <QSplitter>
#include <QTest>

namespace {

template <class Widget> QWidget *make()
{
    return new Widget(static_cast<QWidget *>(nullptr));
}

QWidget *makeOwnTile()
{
    return new OlvIconButton(QLatin1Char('M'), QStringLiteral("Mail"), QStringLiteral("Sans"),
                             nullptr, 100, 100);
}

QWidget *makeBar()
{
    return new OlvControlBar({}, nullptr);
}

constexpr int smallest = 20;
/** A caption gets smaller where it does not fit into its button; this is what it has at first. */
constexpr int fullPointSize = 9;

} // namespace

class TestFormSizes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void areLargeEnoughInABareForm_data();
    void areLargeEnoughInABareForm();
    void comeWithAPolicy();
    void leaveWhatTheApplicationHasSet();
    void leaveWhatIsPlacedByHand();
    void holdInASplitter();
    void areBoundedByTheMaximum();
    void showACaptionAtItsFullSize_data();
    void showACaptionAtItsFullSize();
    void followTheCaption();
    void followAGlyph();
    void followTheFontOfTheForm();
    void makeRoomForAPasswordButton();
    void haveTypedTextAboutAsLargeAsTheForm();
    void comeToAWidgetThatIsAddedLater();
    void areTakenBack();
    void areNotTakenBackFromTheApplication();
    void areSwitchedOnAndOff();
};

void TestFormSizes::areLargeEnoughInABareForm_data()
{
    QTest::addColumn<MakeWidget>("make");
    QTest::newRow("OlvButton") << &make<OlvButton>;
    QTest::newRow("OlvIconButton") << &make<OlvIconButton>;
    QTest::newRow("OlvIconButton with a glyph") << &makeOwnTile;
    QTest::newRow("OlvSimpleIconButton") << &make<OlvSimpleIconButton>;
    QTest::newRow("OlvLineEdit") << &make<OlvLineEdit>;
    QTest::newRow("OlvShortcutEdit") << &make<OlvShortcutEdit>;
    QTest::newRow("OlvSwitch") << &make<OlvSwitch>;
    QTest::newRow("OlvSlider") << &make<OlvSlider>;
    QTest::newRow("OlvControlBar") << &makeBar;
    QTest::newRow("OlvDragWidget") << &make<OlvDragWidget>;
    QTest::newRow("OlvGridLayout") << &make<OlvGridLayout>;
    QTest::newRow("OlvFlexWidget") << &make<OlvFlexWidget>;
}

void TestFormSizes::areLargeEnoughInABareForm()
{
    QFETCH(MakeWidget, make);
    QWidget window;
    auto *rows = new QFormLayout(&window);
    rows->setSizeConstraint(QLayout::SetNoConstraint);
    QWidget *widget = make();
    rows->addRow(QStringLiteral("Row"), widget);
    new OlvFormSupport(&window);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QVERIFY(widget->isVisible());
    QVERIFY2(widget->width() >= smallest && widget->height() >= smallest,
             qPrintable(QStringLiteral("%1 x %2").arg(widget->width()).arg(widget->height())));
    const QSize natural = OlvFormSupport::naturalSize(widget);
    QVERIFY(natural.width() >= smallest && natural.height() >= smallest);
}

void TestFormSizes::comeWithAPolicy()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSizePolicy line(QSizePolicy::Expanding, QSizePolicy::Fixed);
    const QSizePolicy square(QSizePolicy::Fixed, QSizePolicy::Fixed);
    QCOMPARE(form.name->sizePolicy(), line);
    QCOMPARE(form.shortcut->sizePolicy(), line);
    QCOMPARE(form.volume->sizePolicy(), line);
    QCOMPARE(form.save->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed));
    QCOMPARE(form.wifi->sizePolicy(), square);
    QCOMPARE(form.star->sizePolicy(), square);
    QCOMPARE(form.mail->sizePolicy(), square);
}

void TestFormSizes::leaveWhatTheApplicationHasSet()
{
    WidgetForm form;
    form.name->setMinimumWidth(333);
    form.wifi->setFixedSize(70, 36);
    form.save->setMinimumSize(44, 44);
    const QSizePolicy own(QSizePolicy::Ignored, QSizePolicy::Maximum);
    form.save->setSizePolicy(own);
    new OlvFormSupport(&form);
    QCOMPARE(form.name->minimumSize(), QSize(333, OlvFormSupport::naturalSize(form.name).height()));
    QCOMPARE(form.wifi->minimumSize(), QSize(70, 36));
    QCOMPARE(form.save->minimumSize(), QSize(44, 44));
    QCOMPARE(form.save->sizePolicy(), own);

    form.shortcut->setMinimumSize(21, 22);
    form.shortcut->setFont(QFont(QStringLiteral("Sans"), 30));
    QCOMPARE(form.shortcut->minimumSize(), QSize(21, 22));
}

void TestFormSizes::leaveWhatIsPlacedByHand()
{
    QWidget window;
    OlvButton button(QStringLiteral("Save"), &window);
    button.setGeometry(10, 10, 40, 20);
    new OlvFormSupport(&window);
    window.show();
    QCOMPARE(button.geometry(), QRect(10, 10, 40, 20));
    QCOMPARE(button.minimumSize(), QSize(0, 0));
    QCOMPARE(button.sizePolicy(), QWidget().sizePolicy());
}

void TestFormSizes::holdInASplitter()
{
    QSplitter splitter;
    auto *slider = new OlvSlider(&splitter);
    new OlvFormSupport(&splitter);
    QCOMPARE(slider->minimumSize(), OlvFormSupport::naturalSize(slider));
}

void TestFormSizes::areBoundedByTheMaximum()
{
    WidgetForm form;
    form.save->setMaximumHeight(18);
    new OlvFormSupport(&form);
    QCOMPARE(form.save->minimumSize(), QSize(OlvFormSupport::naturalSize(form.save).width(), 18));
}

void TestFormSizes::showACaptionAtItsFullSize_data()
{
    QTest::addColumn<QString>("caption");
    QTest::newRow("none") << QString();
    QTest::newRow("a letter") << QStringLiteral("i");
    QTest::newRow("a word") << QStringLiteral("Save");
    QTest::newRow("words") << QStringLiteral("Save all and leave");
    QTest::newRow("two lines") << QStringLiteral("Save\nall");
    QTest::newRow("Chinese") << QStringLiteral("全部保存");
    QTest::newRow("wide letters") << QString(12, QLatin1Char('W'));
}

void TestFormSizes::showACaptionAtItsFullSize()
{
    QFETCH(QString, caption);
    WidgetForm form;
    form.save->setText(caption);
    new OlvFormSupport(&form);
    QFont font = form.font();
    font.setFamily(QStringLiteral("宋体"));
    font.setPointSize(fullPointSize);
    QCOMPARE(OlvGlobal::adaptDocumentToPointSize(caption, form.save->minimumSize(), font),
             fullPointSize);
}

void TestFormSizes::followTheCaption()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QSize narrow = form.save->minimumSize();
    form.save->setText(QStringLiteral("Save all of it"));
    const QSize wide = form.save->minimumSize();
    QVERIFY(wide.width() > narrow.width());
    QCOMPARE(wide.height(), narrow.height());
    QCOMPARE(wide, OlvFormSupport::naturalSize(form.save));
    form.save->setText(QStringLiteral("Save"));
    QCOMPARE(form.save->minimumSize(), narrow);

    form.save->setMinimumWidth(300);
    form.save->setText(QStringLiteral("Save\nall"));
    QCOMPARE(form.save->minimumWidth(), 300);
    QVERIFY(form.save->minimumHeight() > narrow.height());
}

void TestFormSizes::followAGlyph()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    form.show();
    QCOMPARE(form.star->minimumSize(), QSize(30, 30));
    form.star->setText(QStringLiteral("wide one"));
    QTRY_COMPARE(form.star->minimumSize(), OlvFormSupport::naturalSize(form.star));
    QVERIFY(form.star->minimumWidth() > 30);
    QFont font(QStringLiteral("Sans"), 40);
    form.star->setFont(font);
    QTRY_VERIFY(form.star->minimumHeight() > 40);
}

void TestFormSizes::followTheFontOfTheForm()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const QVector<QWidget *> widgets{ form.name, form.shortcut, form.wifi };
    QVector<QSize> before;
    for (const QWidget *widget : widgets) {
        before.append(widget->minimumSize());
    }
    QFont font = form.font();
    font.setPointSize(2 * font.pointSize());
    form.setFont(font);
    for (int i = 0; i < widgets.size(); ++i) {
        const QSize after = widgets.at(i)->minimumSize();
        QCOMPARE(after, OlvFormSupport::naturalSize(widgets.at(i)));
        QVERIFY(after.height() > 1.5 * before.at(i).height());
        QVERIFY(after.width() > 1.5 * before.at(i).width());
    }
}

void TestFormSizes::makeRoomForAPasswordButton()
{
    WidgetForm form;
    new OlvFormSupport(&form);
    const int before = form.name->minimumWidth();
    form.name->setPassWord(true);
    QCOMPARE(form.name->minimumWidth(), before + form.name->minimumHeight());
    form.name->setIcon(QStringLiteral("wide glyph"));
    QVERIFY(form.name->minimumWidth() > before + form.name->minimumHeight());
}

void TestFormSizes::haveTypedTextAboutAsLargeAsTheForm()
{
    for (const int pointSize : { 9, 10, 11, 12, 16, 24 }) {
        WidgetForm form;
        QFont font = form.font();
        font.setPointSize(pointSize);
        form.setFont(font);
        new OlvFormSupport(&form);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        const int typed = form.name->lineEdit()->font().pointSize();
        QVERIFY2(typed >= pointSize && typed <= pointSize + 2, qPrintable(QString::number(typed)));
    }
}

void TestFormSizes::comeToAWidgetThatIsAddedLater()
{
    QWidget window;
    auto *rows = new QFormLayout(&window);
    rows->setSizeConstraint(QLayout::SetNoConstraint);
    new OlvFormSupport(&window);
    auto *early = new OlvButton(QStringLiteral("Early"), &window);
    rows->addRow(early);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    QCOMPARE(early->size().height(), OlvFormSupport::naturalSize(early).height());

    auto *late = new OlvButton(QStringLiteral("Late"), nullptr);
    rows->addRow(late);
    QTRY_VERIFY(late->isVisible());
    QTRY_COMPARE(late->minimumSize(), OlvFormSupport::naturalSize(late));
    QTRY_COMPARE(late->height(), OlvFormSupport::naturalSize(late).height());

    // one that is there, but in no layout until later
    auto *free = new OlvButton(QStringLiteral("Free"), &window);
    free->show();
    QCoreApplication::processEvents();
    QCOMPARE(free->minimumSize(), QSize(0, 0));
    auto *box = new QHBoxLayout;
    box->addWidget(free);
    rows->addRow(box);
    QTRY_COMPARE(free->minimumSize(), OlvFormSupport::naturalSize(free));
}

void TestFormSizes::areTakenBack()
{
    WidgetForm form;
    const WidgetForm untouched;
    auto *support = new OlvFormSupport(&form);
    auto *leaving = new OlvButton(QStringLiteral("Leaving"), &form);
    form.rows()->addRow(leaving);
    form.show();
    QVERIFY(leaving->minimumWidth() > 0);
    leaving->setParent(nullptr);
    QCOMPARE(leaving->minimumSize(), QSize(0, 0));
    QCOMPARE(leaving->sizePolicy(), untouched.save->sizePolicy());
    delete leaving;

    delete support;
    for (int row = 0; row < untouched.rows()->rowCount(); ++row) {
        const auto *was = untouched.rows()->itemAt(row, QFormLayout::FieldRole)->widget();
        const auto *is = form.rows()->itemAt(row, QFormLayout::FieldRole)->widget();
        QCOMPARE(is->minimumSize(), was->minimumSize());
        QCOMPARE(is->sizePolicy(), was->sizePolicy());
    }
}

void TestFormSizes::areNotTakenBackFromTheApplication()
{
    WidgetForm form;
    auto *support = new OlvFormSupport(&form);
    form.name->setMinimumWidth(400);
    form.save->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
    form.wifi->setMinimumSize(99, 98);
    delete support;
    QCOMPARE(form.name->minimumSize(), QSize(400, 0));
    QCOMPARE(form.save->minimumSize(), QSize(0, 0));
    QCOMPARE(form.save->sizePolicy(), QSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored));
    QCOMPARE(form.wifi->minimumSize(), QSize(99, 98));
}

void TestFormSizes::areSwitchedOnAndOff()
{
    WidgetForm form;
    auto *support = new OlvFormSupport(&form, OlvFormSupport::Keyboard);
    QCOMPARE(support->features(), OlvFormSupport::Features(OlvFormSupport::Keyboard));
    QCOMPARE(form.save->minimumSize(), QSize(0, 0));
    support->setFeatures(OlvFormSupport::NaturalSizes);
    QCOMPARE(form.save->minimumSize(), OlvFormSupport::naturalSize(form.save));
    const QSizePolicy natural = form.save->sizePolicy();
    QVERIFY(natural != WidgetForm().save->sizePolicy());
    support->setFeatures({});
    QCOMPARE(form.save->minimumSize(), QSize(0, 0));
    QCOMPARE(form.save->sizePolicy(), WidgetForm().save->sizePolicy());
    support->setFeatures(OlvFormSupport::NaturalSizes);
    QCOMPARE(form.save->sizePolicy(), natural);
    support->setFeatures({});
    // what the application sets meanwhile is its own, even if it is the same
    form.save->setSizePolicy(natural);
    support->setFeatures(OlvFormSupport::NaturalSizes);
    support->setFeatures({});
    QCOMPARE(form.save->sizePolicy(), natural);
    form.save->setText(QStringLiteral("Not measured"));
    form.setFont(QFont(QStringLiteral("Sans"), 20));
    QCOMPARE(form.save->minimumSize(), QSize(0, 0));
}

ADD_TEST(TestFormSizes, QApplication)
#include "tst_formsizes.moc"

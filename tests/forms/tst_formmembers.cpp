// SPDX-License-Identifier: MIT
// Which widgets a support serves: those of its form, whenever and however they come and go.
#include "deferred.h"
#include "servedbutton.h"
#include "testprogram.h"
#include "widgetform.h"

#include <QDialog>
#include <QDockWidget>
#include <QLineEdit>
#include <QMainWindow>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>
#include <QVBoxLayout>

class TestFormMembers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        runDeferred();
    }
    void areThoseThatAreThere();
    void areThoseAtAnyDepth();
    void areThoseInTheBarsAndDocksOfAMainWindow();
    void areThoseThatComeLater();
    void areThoseThatAreMovedIn();
    void areNotThoseThatLeave();
    void areNoLongerWatchedOnceTheyLeave();
    void areNotThoseOfAContainerThatLeaves();
    void areThoseOfAContainerThatComesBack();
    void mayBeASingleWidget();
    void areNotThoseInAWindow();
    void comeAndGoWithTheWindowFlag();
    void areNotThePartsOfAWidget();
    void belongToTheNearestForm();
    void belongToTheFirstOfTwoSupports();
    void goToTheNextSupport();
    void goToTheFormAround();
    void areServedOnceTheirPlaceHasBeenTakenBefore();
    void areFreeAfterTheSupport();
    void needNoForm();
};

void TestFormMembers::areThoseThatAreThere()
{
    QWidget window;
    OlvButton *button = addButton(&window);
    QVERIFY(!isServed(*button));
    new OlvFormSupport(&window);
    QVERIFY(isServed(*button)); // before it is shown
}

void TestFormMembers::areThoseAtAnyDepth()
{
    QTabWidget tabs;
    auto *page = new QWidget;
    tabs.addTab(page, QStringLiteral("Page"));
    auto *area = new QScrollArea(page);
    auto *content = new QWidget;
    area->setWidget(content);
    auto *panel = new OlvFlexWidget(200, 100, content);
    panel->setWindowFlags(Qt::Widget);
    OlvButton *button = addButton(panel);
    new OlvFormSupport(&tabs);
    QVERIFY(isServed(*button));
}

/** Whose layout prints a warning when it is asked how many items it has. */
void TestFormMembers::areThoseInTheBarsAndDocksOfAMainWindow()
{
    QMainWindow window;
    // the offscreen platform complains about windows with a minimum size
    window.layout()->setSizeConstraint(QLayout::SetNoConstraint);
    QVector<OlvButton *> buttons;
    QToolBar *bar = window.addToolBar(QStringLiteral("Bar"));
    buttons.append(addButton(bar));
    bar->addWidget(buttons.last());
    auto *dock = new QDockWidget(QStringLiteral("Dock"));
    auto *page = new QWidget;
    buttons.append(addButton(page));
    (new QVBoxLayout(page))->addWidget(buttons.last());
    dock->setWidget(page);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);
    buttons.append(addButton(&window));
    window.setCentralWidget(buttons.last());
    window.resize(400, 300);
    new OlvFormSupport(&window);
    window.show();
    for (const OlvButton *button : qAsConst(buttons)) {
        QVERIFY(isServed(*button));
        QCOMPARE(button->minimumSize(), OlvFormSupport::naturalSize(button));
    }
}

void TestFormMembers::areThoseThatComeLater()
{
    QWidget window;
    new OlvFormSupport(&window);
    OlvButton *early = addButton(&window);
    auto *page = new QWidget(&window);
    OlvButton *within = addButton(page);
    window.show();
    QVERIFY(isServed(*early));
    QVERIFY(isServed(*within));

    OlvButton *late = addButton(page);
    late->show();
    QVERIFY(isServed(*late));
}

void TestFormMembers::areThoseThatAreMovedIn()
{
    QWidget window;
    new OlvFormSupport(&window);
    window.show();
    QWidget other;
    OlvButton *button = addButton(&other);
    auto *page = new QWidget(&other);
    OlvButton *within = addButton(page);
    other.show();
    QVERIFY(!isServed(*button));
    button->setParent(&window);
    page->setParent(&window);
    QVERIFY(isServed(*button));
    QVERIFY(isServed(*within));
}

void TestFormMembers::areNotThoseThatLeave()
{
    QWidget window;
    QWidget other;
    OlvButton *button = addButton(&window);
    new OlvFormSupport(&window);
    button->setParent(&other);
    QVERIFY(!isServed(*button));
    button->setParent(nullptr);
    QVERIFY(!isServed(*button));
    delete button;
}

void TestFormMembers::areNoLongerWatchedOnceTheyLeave()
{
    class CountingSupport : public OlvFormSupport
    {
    public:
        using OlvFormSupport::OlvFormSupport;
        bool eventFilter(QObject *watched, QEvent *event) override
        {
            count += event->type() == QEvent::User ? 1 : 0;
            return OlvFormSupport::eventFilter(watched, event);
        }
        int count = 0;
    };
    WidgetForm form;
    auto *page = new QWidget(&form);
    auto *support = new CountingSupport(&form);
    const QVector<QWidget *> all{ page, form.save, form.name, form.name->lineEdit() };
    const auto watched = [&] {
        support->count = 0;
        for (QWidget *widget : all) {
            QEvent event(QEvent::User);
            QCoreApplication::sendEvent(widget, &event);
        }
        return support->count;
    };
    QCOMPARE(watched(), 4);
    for (QWidget *widget :
         { page, static_cast<QWidget *>(form.save), static_cast<QWidget *>(form.name) }) {
        widget->setParent(nullptr);
    }
    QCOMPARE(watched(), 0);
    delete page;
    delete form.save;
    delete form.name;
}

void TestFormMembers::areNotThoseOfAContainerThatLeaves()
{
    QWidget window;
    QWidget other;
    auto *page = new QWidget(&window);
    auto *inner = new QWidget(page);
    OlvButton *button = addButton(inner);
    new OlvFormSupport(&window);
    QVERIFY(isServed(*button));
    page->setParent(&other);
    QVERIFY(!isServed(*button));
    other.show();
    OlvButton *late = addButton(inner);
    late->show();
    QVERIFY(!isServed(*late));
}

void TestFormMembers::areThoseOfAContainerThatComesBack()
{
    QWidget window;
    QWidget other;
    auto *page = new QWidget(&window);
    OlvButton *button = addButton(page);
    new OlvFormSupport(&window);
    window.show();
    page->setParent(&other);
    QVERIFY(!isServed(*button));
    page->setParent(&window);
    QVERIFY(isServed(*button));
}

void TestFormMembers::mayBeASingleWidget()
{
    QWidget window;
    OlvButton *one = addButton(&window);
    OlvButton *other = addButton(&window);
    auto *support = new OlvFormSupport(one);
    QVERIFY(isServed(*one));
    QVERIFY(!isServed(*other));
    delete support;
    QVERIFY(!isServed(*one));
}

void TestFormMembers::areNotThoseInAWindow()
{
    QWidget window;
    auto *dialog = new QDialog(&window);
    OlvButton *button = addButton(dialog);
    new OlvFormSupport(&window);
    window.show();
    dialog->show();
    OlvButton *late = addButton(dialog);
    late->show();
    QVERIFY(!isServed(*button));
    QVERIFY(!isServed(*late));
    new OlvFormSupport(dialog);
    QVERIFY(isServed(*button));
    QVERIFY(isServed(*late));
}

void TestFormMembers::comeAndGoWithTheWindowFlag()
{
    QWidget window;
    auto *panel = new QWidget(&window);
    OlvButton *button = addButton(panel);
    OlvButton *single = addButton(&window);
    new OlvFormSupport(&window);
    window.show();
    for (int i = 0; i < 2; ++i) {
        panel->setWindowFlags(Qt::Window);
        panel->show();
        QVERIFY(!isServed(*button));
        panel->setWindowFlags(Qt::Widget);
        panel->show();
        QVERIFY(isServed(*button));
        single->setWindowFlags(Qt::Window);
        single->show();
        QVERIFY(!isServed(*single));
        single->setWindowFlags(Qt::Widget);
        single->show();
        QVERIFY(isServed(*single));
    }
}

void TestFormMembers::areNotThePartsOfAWidget()
{
    QWidget window;
    auto *edit = new OlvLineEdit(&window);
    new OlvFormSupport(&window);
    window.show();
    QCOMPARE(edit->findChild<OlvSimpleIconButton *>()->focusPolicy(), Qt::NoFocus);
    OlvButton *inside = addButton(edit);
    inside->show();
    QVERIFY(!isServed(*inside));
}

void TestFormMembers::belongToTheNearestForm()
{
    QWidget window;
    auto *page = new QWidget(&window);
    OlvButton *outside = addButton(&window);
    OlvButton *inside = addButton(page);
    auto *outer = new OlvFormSupport(&window);
    auto *inner = new OlvFormSupport(page, OlvFormSupport::Features());
    QVERIFY(isServed(*outside));
    QVERIFY(!isServed(*inside)); // by one that gives nothing
    inner->setFeatures(OlvFormSupport::Keyboard);
    QVERIFY(isServed(*inside));
    delete outer;
    QVERIFY(!isServed(*outside));
    QVERIFY(isServed(*inside));
}

void TestFormMembers::belongToTheFirstOfTwoSupports()
{
    QWidget window;
    OlvButton *button = addButton(&window);
    new OlvFormSupport(&window, OlvFormSupport::Features());
    new OlvFormSupport(&window);
    QVERIFY(!isServed(*button));
}

void TestFormMembers::goToTheNextSupport()
{
    QWidget window;
    OlvButton *button = addButton(&window);
    auto *first = new OlvFormSupport(&window);
    auto *second = new OlvFormSupport(&window);
    delete first;
    QVERIFY(isServed(*button));
    delete second;
    QVERIFY(!isServed(*button));
}

void TestFormMembers::goToTheFormAround()
{
    QWidget window;
    auto *page = new QWidget(&window);
    OlvButton *button = addButton(page);
    new OlvFormSupport(&window);
    auto *inner = new OlvFormSupport(page, OlvFormSupport::Features());
    QVERIFY(!isServed(*button));
    delete inner;
    QVERIFY(isServed(*button));
}

void TestFormMembers::areServedOnceTheirPlaceHasBeenTakenBefore()
{
    QWidget window;
    new OlvFormSupport(&window);
    window.show();
    // many, so that some have the addresses of those before
    for (int i = 0; i < 200; ++i) {
        OlvButton *button = addButton(&window);
        button->show();
        QVERIFY(isServed(*button));
        delete button;
    }
}

void TestFormMembers::areFreeAfterTheSupport()
{
    WidgetForm form;
    const WidgetForm untouched;
    delete new OlvFormSupport(&form);
    for (int row = 0; row < form.rows()->rowCount(); ++row) {
        const auto *was = untouched.rows()->itemAt(row, QFormLayout::FieldRole)->widget();
        const auto *is = form.rows()->itemAt(row, QFormLayout::FieldRole)->widget();
        QCOMPARE(is->focusPolicy(), was->focusPolicy());
        QVERIFY(!is->focusProxy());
        QCOMPARE(is->dynamicPropertyNames(), was->dynamicPropertyNames());
        QCOMPARE(is->children().size(), was->children().size());
    }
    QCOMPARE(form.children().size(), untouched.children().size());
}

void TestFormMembers::needNoForm()
{
    OlvFormSupport support;
    QVERIFY(!support.parent());
    QCOMPARE(support.features(), OlvFormSupport::Features(OlvFormSupport::AllFeatures));
    support.setFeatures(OlvFormSupport::Keyboard);
    QWidget window;
    OlvButton *button = addButton(&window);
    window.show();
    QVERIFY(!isServed(*button));
}

ADD_TEST(TestFormMembers, QApplication)
#include "tst_formmembers.moc"

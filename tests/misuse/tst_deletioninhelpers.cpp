// SPDX-License-Identifier: MIT
#include "deletion.h"
#include "gridscene.h"
#include "testprogram.h"

#include <OlvWidgets>

#include <QPushButton>

namespace {

using namespace Deletion;

QVector<Emission> barEmissions()
{
    const auto makeBar = [](QWidget *parent) -> QWidget * {
        return new OlvControlBar({ u'a', u'b', u'c', u'd', u'e', u'f', u'g', u'h' }, parent,
                                 { QStringLiteral("one"), QStringLiteral("two") });
    };
    const auto buttonAt = [](int index) -> Finder {
        return [=](const QWidget *bar) {
            return bar->findChildren<QPushButton *>().value(index);
        };
    };
    QVector<Emission> emissions;
    for (int i = 0; i < 8; ++i) {
        const auto click = [=](QWidget *sender) {
            clickMouse(static_cast<QWidget *>(buttonAt(i)(sender)));
        };
        // the two in the middle are those that exclude each other
        const QVector<Victim> helpers{ { "button", buttonAt(i) },
                                       { "bottom", buttonAt(3) },
                                       { "top", buttonAt(4) } };
        if (i < 2) {
            emissions.append({ "OlvControlBar::custom " + QByteArray::number(i), makeBar,
                               toSignal<OlvControlBar>(&OlvControlBar::custom), click, helpers });
        } else {
            emissions.append({ "OlvControlBar::changed " + QByteArray::number(i - 2), makeBar,
                               toSignal<OlvControlBar>(&OlvControlBar::changed), click, helpers });
        }
    }
    return emissions;
}

QVector<Emission> containerEmissions()
{
    const auto makeGrid = [](QWidget *parent) -> QWidget * {
        auto *grid = new OlvGridLayout(parent);
        grid->resize(300, grid->height());
        auto *tile = makeTile(grid, 50, 1970);
        tile->setObjectName(QStringLiteral("tile"));
        grid->addWidget(tile);
        return grid;
    };
    const auto toBar = [](QWidget *sender, const Slot &slot) {
        QScrollBar *bar = barOf(*static_cast<OlvGridLayout *>(sender));
        bar->setValue(70);
        QObject::connect(bar, &QScrollBar::valueChanged, sender, slot);
    };
    const auto turn = [](QWidget *sender) {
        wheel(*static_cast<OlvGridLayout *>(sender), QPoint(0, 120));
    };
    const auto shrink = [](QWidget *sender) {
        auto *tile = sender->findChild<QWidget *>(QStringLiteral("tile"));
        tile->resize(50, tile->height() / 2);
        static_cast<OlvGridLayout *>(sender)->reUi();
    };
    const auto toTimer = [](const char *property) {
        return [=](QWidget *sender, const Slot &slot) {
            auto *timer = static_cast<QTimer *>(inProperty<QTimer>(property)(sender));
            QObject::connect(timer, &QTimer::timeout, sender, slot);
        };
    };
    const auto makePanel = [](QWidget *parent) -> QWidget * {
        return new OlvFlexWidget(200, 100, parent);
    };
    const QVector<Victim> gridHelpers{ { "bar", inProperty<QScrollBar>("ScrollBar") },
                                       { "timer", inProperty<QTimer>("ResizeTimer") },
                                       { "label", ofClass<QLabel>() } };
    const QVector<Victim> panelHelpers{ { "timer", inProperty<QTimer>("resizeTimer") },
                                        { "mover", ofClass<OlvMoveWidget>() },
                                        { "resizer", ofClass<OlvResizeWidget>() },
                                        { "handle", ofClass<OlvResizeItem>() } };
    return {
        { "bar of OlvGridLayout, wheel", makeGrid, toBar, turn, gridHelpers },
        { "bar of OlvGridLayout, reflow", makeGrid, toBar, shrink, gridHelpers },
        { "timer of OlvGridLayout", makeGrid, toTimer("ResizeTimer"),
          [](QWidget *sender) { hurry(sender, "ResizeTimer"); }, gridHelpers },
        { "timer of OlvFlexWidget", makePanel, toTimer("resizeTimer"),
          [](QWidget *sender) { hurry(sender, "resizeTimer"); }, panelHelpers },
    };
}

} // namespace

class TestDeletionInHelpers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void survives_data();
    void survives();
};

void TestDeletionInHelpers::survives_data()
{
    Deletion::addRows(barEmissions() + containerEmissions());
}

void TestDeletionInHelpers::survives()
{
    QFETCH(Deletion::Emission, emission);
    QFETCH(Deletion::Finder, victim);
    Deletion::check(emission, victim);
}

ADD_TEST(TestDeletionInHelpers, QApplication)
#include "tst_deletioninhelpers.moc"

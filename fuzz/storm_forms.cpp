// SPDX-License-Identifier: MIT
#include "world.h"

#include <OlvWidgets/OlvWidgets>

#include <QDataWidgetMapper>
#include <QFormLayout>
#include <QGraphicsOpacityEffect>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSplitter>
#include <QStandardItemModel>

#include <algorithm>
#include <memory>

namespace {

constexpr int mostSupports = 12;
constexpr int mostMappers = 6;
constexpr int records = 4;
constexpr int columns = 3;
constexpr int leastSide = 20;
constexpr int largestSide = 600;

template <typename Object> void prune(QVector<QPointer<Object>> &objects)
{
    objects.erase(std::remove_if(objects.begin(), objects.end(),
                                 [](const QPointer<Object> &object) { return object.isNull(); }),
                  objects.end());
}

/** Widgets of the library in layouts, splitters and bare windows, with supports that come and go.
 */
class FormsFamily : public Family
{
public:
    FormsFamily()
        : m_model(records, columns)
    { }
    ~FormsFamily() override
    {
        for (const QPointer<OlvFormSupport> &support : qAsConst(m_supports)) {
            delete support;
        }
        for (const QPointer<QDataWidgetMapper> &mapper : qAsConst(m_mappers)) {
            delete mapper;
        }
    }
    Q_DISABLE_COPY(FormsFamily)

    QWidget *make(World &world, QWidget *parent) override
    {
        Dice &dice = world.dice();
        if (dice.oneIn(12)) {
            return new QSplitter(parent);
        }
        const QPointer<QWidget> host(parent);
        const QPointer<QWidget> widget(makeOne(dice, parent));
        // Qt draws a widget that has an effect into a picture of its whole size
        widget->setMaximumSize(largestSide, largestSide);
        if (dice.oneIn(3)) {
            layOut(dice, host, widget);
        }
        return widget;
    }

    void call(World &world, QWidget *widget) override
    {
        Dice &dice = world.dice();
        switch (dice.below(16)) {
        case 0:
        case 1:
            support(world, dice.oneIn(3) ? widget : world.anyHost());
            break;
        case 2:
            dismiss(world);
            break;
        case 3:
            switchFeatures(world);
            break;
        case 4:
            layOutAgain(world, widget);
            break;
        case 5:
            orderTabs(world, widget);
            break;
        case 6:
            setEffect(world, widget);
            break;
        case 7:
            bind(world, widget);
            break;
        case 8:
            turnRecords(world);
            break;
        case 9:
            edit(world, widget);
            break;
        case 10:
        case 11: {
            const World::Guard guard(world);
            widget->setFocus(Qt::FocusReason(dice.below(Qt::NoFocusReason)));
            break;
        }
        default:
            pressKey(dice, widget);
        }
    }

    QVector<QByteArray> properties() const override
    {
        return { "content", "partSize", "Icon",   "Pwd",      "state",
                 "hovered", "type",     "switch", "progress", "isCheckable" };
    }

    /** Layouts, queued shows, the end of an editor: Qt's own code crashes on a deletion there. */
    bool isQtAtWork() const override
    {
        return Storm::isDelivering({ QEvent::ChildPolished, QEvent::DeferredDelete,
                                     QEvent::EnabledChange, QEvent::FocusIn, QEvent::FocusOut,
                                     QEvent::FontChange, QEvent::Hide, QEvent::LayoutRequest,
                                     QEvent::MetaCall, QEvent::Move, QEvent::ParentChange,
                                     QEvent::Resize, QEvent::Show, QEvent::StyleChange });
    }

    void check(World & /*world*/, QWidget *widget) override
    {
        const QSize natural = OlvFormSupport::naturalSize(widget);
        const bool isSized = qobject_cast<OlvWidget *>(widget)
            || qobject_cast<OlvSimpleIconButton *>(widget) || qobject_cast<OlvDragWidget *>(widget);
        Storm::check(!isSized || (natural.width() >= leastSide && natural.height() >= leastSide),
                     "a widget of the library is large enough to be hit in a form");
        Storm::check(!OlvFormSupport::naturalSize(nullptr).isValid(), "nothing has no size");
        if (const auto *line = qobject_cast<OlvLineEdit *>(widget)) {
            prune(m_supports);
            Storm::check(!m_supports.isEmpty() || !line->focusProxy(),
                         "a line without a support keeps its focus");
        }
    }

private:
    static QWidget *makeOne(Dice &dice, QWidget *parent)
    {
        switch (dice.below(10)) {
        case 0:
            return new OlvButton(dice.text(), parent);
        case 1:
            return new OlvIconButton(dice.character(), dice.text(), QStringLiteral("Sans"), parent,
                                     80, 80);
        case 2:
            return new OlvSimpleIconButton(dice.text(), dice.font(), parent);
        case 3:
            return new OlvShortcutEdit(parent);
        case 4:
            return new OlvSwitch(parent);
        case 5:
            return new OlvSlider(parent);
        case 6:
            return new OlvControlBar({}, parent);
        case 7:
            return new OlvGridLayout(parent);
        case 8:
            return new OlvDragWidget(parent);
        default: {
            auto *line = new OlvLineEdit(parent);
            // a drag of text would block until a real mouse button is released
            line->lineEdit()->setDragEnabled(false);
            return line;
        }
        }
    }

    static OlvFormSupport::Features anyFeatures(Dice &dice)
    {
        return dice.coin() ? OlvFormSupport::Features(OlvFormSupport::AllFeatures)
                           : OlvFormSupport::Features(int(dice.bits()));
    }

    /** Puts a widget into the layout of its host, which gets one if it has none. */
    static void layOut(Dice &dice, QWidget *host, QWidget *widget)
    {
        if (!host || !widget || widget->isWindow() || widget->parentWidget() != host
            || qobject_cast<QSplitter *>(host) || !formMayBe(host)) {
            return;
        }
        auto *rows = qobject_cast<QFormLayout *>(host->layout());
        if (!rows && !host->layout()) {
            rows = new QFormLayout(host);
            rows->setSizeConstraint(QLayout::SetNoConstraint);
        }
        if (rows) {
            rows->addRow(dice.text(), widget);
        }
    }
    /** Whether a program may lay out what is in a widget: not in one that does so itself. */
    static bool formMayBe(const QWidget *host)
    {
        return qstrncmp(host->metaObject()->className(), "Olv", 3) != 0;
    }

    void support(World &world, QWidget *form)
    {
        prune(m_supports);
        if (world.isGuarded() || m_supports.size() >= mostSupports) {
            return;
        }
        Dice &dice = world.dice();
        const OlvFormSupport::Features features = anyFeatures(dice);
        QPointer<OlvFormSupport> made;
        {
            // there would be no pointer to one that goes while it is made
            const World::Guard guard(world);
            made = new OlvFormSupport(dice.oneIn(16) ? nullptr : form, OlvFormSupport::Features());
        }
        world.remember(made);
        m_supports.append(made);
        made->setFeatures(features);
        Storm::check(!world.isUndisturbed() || (made && made->features() == features),
                     "a support has the features that it was given");
    }

    void dismiss(World &world)
    {
        prune(m_supports);
        if (m_supports.isEmpty()) {
            return;
        }
        const QPointer<OlvFormSupport> one = world.dice().pick(m_supports);
        if (world.isGuarded() || world.dice().oneIn(4)) {
            one->deleteLater();
        } else {
            delete one;
        }
    }

    void switchFeatures(World &world)
    {
        prune(m_supports);
        if (m_supports.isEmpty() || world.isGuarded()) {
            return;
        }
        const QPointer<OlvFormSupport> one = world.dice().pick(m_supports);
        const OlvFormSupport::Features features = anyFeatures(world.dice());
        one->setFeatures(features);
        Storm::check(!world.isUndisturbed() || (one && one->features() == features),
                     "a support has the features that were set last");
    }

    static void layOutAgain(World &world, QWidget *widget)
    {
        if (world.isGuarded() || !widget->parentWidget()) {
            return;
        }
        QWidget *host = widget->parentWidget();
        if (world.dice().oneIn(4)) {
            delete host->layout();
        } else if (QLayout *layout = host->layout()) {
            layout->removeWidget(widget);
        } else {
            layOut(world.dice(), host, widget);
        }
    }

    static void orderTabs(World &world, QWidget *widget)
    {
        QWidget *other = world.anyWidget();
        if (!world.isGuarded() && other && other->window() == widget->window()) {
            QWidget::setTabOrder(widget, other);
        }
    }

    static void setEffect(World &world, QWidget *widget)
    {
        // not for a container, which may be as large as it likes
        if (!world.isGuarded() && qobject_cast<OlvWidget *>(widget)) {
            widget->setGraphicsEffect(world.dice().coin() ? new QGraphicsOpacityEffect : nullptr);
        }
    }

    void bind(World &world, QWidget *widget)
    {
        prune(m_mappers);
        if (world.isGuarded()) {
            return;
        }
        Dice &dice = world.dice();
        if (m_mappers.isEmpty() || (m_mappers.size() < mostMappers && dice.oneIn(4))) {
            auto *mapper = new QDataWidgetMapper; // Qt does not stand its end in a slot
            mapper->setModel(&m_model);
            mapper->setItemDelegate(new OlvValueDelegate(mapper));
            mapper->setSubmitPolicy(dice.coin() ? QDataWidgetMapper::AutoSubmit
                                                : QDataWidgetMapper::ManualSubmit);
            world.remember(mapper->itemDelegate());
            m_mappers.append(mapper);
        }
        const QPointer<QDataWidgetMapper> mapper = dice.pick(m_mappers);
        mapper->addMapping(widget, dice.below(columns));
    }

    void turnRecords(World &world)
    {
        prune(m_mappers);
        if (m_mappers.isEmpty() || world.isGuarded()) {
            return;
        }
        Dice &dice = world.dice();
        const QPointer<QDataWidgetMapper> mapper = dice.pick(m_mappers);
        switch (dice.below(5)) {
        case 0:
            mapper->setCurrentIndex(dice.below(records));
            break;
        case 1:
            mapper->submit();
            break;
        case 2:
            mapper->revert();
            break;
        case 3: {
            QAbstractItemDelegate *before = mapper->itemDelegate();
            mapper->setItemDelegate(new OlvValueDelegate(mapper));
            before->deleteLater(); // it may be at work
            break;
        }
        default: {
            const QModelIndex index = m_model.index(dice.below(records), dice.below(columns));
            m_model.setData(index, dice.variant());
        }
        }
    }

    /** As a view does it with an editor. */
    void edit(World &world, QWidget *widget)
    {
        if (world.isGuarded()) {
            return;
        }
        Dice &dice = world.dice();
        const QModelIndex index = m_model.index(dice.below(records), dice.below(columns));
        auto *delegate = new OlvValueDelegate;
        const QPointer<OlvValueDelegate> alive(delegate);
        const QPointer<QWidget> editor(widget);
        delegate->setEditorData(widget, index);
        if (alive && editor && dice.coin()) {
            delegate->setModelData(editor, &m_model, index);
        }
        delete alive;
    }

    static void pressKey(Dice &dice, QWidget *widget)
    {
        static constexpr std::array<Qt::Key, 14> keys{
            Qt::Key_Space, Qt::Key_Space,  Qt::Key_Select, Qt::Key_Return,   Qt::Key_Enter,
            Qt::Key_Left,  Qt::Key_Right,  Qt::Key_Up,     Qt::Key_Down,     Qt::Key_PageUp,
            Qt::Key_End,   Qt::Key_Escape, Qt::Key_Home,   Qt::Key_PageDown,
        };
        const Qt::Key key = dice.pick(keys);
        const QPointer<QWidget> receiver(widget);
        for (const QEvent::Type type : { QEvent::KeyPress, QEvent::KeyRelease }) {
            if (receiver && !dice.oneIn(4)) {
                QKeyEvent event(type, key, Qt::NoModifier, QString(), dice.oneIn(8));
                QCoreApplication::sendEvent(receiver, &event);
            }
        }
    }

    QStandardItemModel m_model;
    QVector<QPointer<OlvFormSupport>> m_supports;
    QVector<QPointer<QDataWidgetMapper>> m_mappers;
};

} // namespace

int main(int argc, char **argv)
{
    return runWorlds<FormsFamily>(argc, argv, "forms");
}

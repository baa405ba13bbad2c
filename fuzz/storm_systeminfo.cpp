// SPDX-License-Identifier: MIT
#include "storm.h"

#include <OlvSystemInfo/shortcut.h>

#include <QGuiApplication>
#include <QPointer>
#include <QVector>

#include <memory>

namespace {

constexpr int mostShortcuts = 12;

/** Keeps one, the last, longer than the application object and the library's statics. */
void keep(OlvShortcut *shortcut)
{
    static std::unique_ptr<OlvShortcut> kept;
    kept.reset(shortcut);
}

/** Shortcuts that are made, registered, deleted and activated, by their own slots as well. */
class SystemInfoEpisode : public QObject, public Storm::Episode
{
public:
    explicit SystemInfoEpisode(Dice &dice)
        : m_dice(dice)
    {
        keep(nullptr); // what an episode before has kept must not influence this one
    }

    ~SystemInfoEpisode() override
    {
        m_depth = deepest;
        const int kept = m_dice.coin() ? m_dice.below(mostShortcuts) : -1;
        for (int i = 0; i < m_shortcuts.size(); ++i) {
            QCoreApplication::sendPostedEvents(m_shortcuts.at(i), QEvent::DeferredDelete);
            if (i == kept && m_shortcuts.at(i)) {
                m_shortcuts.at(i)->setParent(nullptr);
                keep(m_shortcuts.at(i));
            } else {
                delete m_shortcuts.at(i);
            }
        }
    }

    void step() override
    {
        QPointer<OlvShortcut> &place = m_shortcuts[m_dice.below(mostShortcuts)];
        if (!place) {
            place = make();
        }
        act(place);
    }

private:
    static constexpr int deepest = 3;

    void act(OlvShortcut *shortcut)
    {
        const auto address = reinterpret_cast<qulonglong>(shortcut);
        const int choice = m_dice.below(1000);
        if (choice < 40) {
            activate(shortcut);
        } else if (choice < 70) {
            shortcut->destroy();
        } else if (choice < 300) {
            shortcut->toString();
        } else if (choice < 330) {
            delete shortcut;
            Storm::check(!OlvShortcut::fromAddress(address), "what is dead is not found");
        } else if (choice < 335) {
            shortcut->deleteLater();
        } else if (choice < 350) {
            Storm::processEvents(m_dice.below(3));
        } else if (choice < 600) {
            Q_EMIT shortcut->activated();
        } else if (choice < 800) {
            Storm::check(OlvShortcut::fromAddress(address) == shortcut, "what lives is found");
        } else {
            const qulonglong wild = m_dice.address();
            const OlvShortcut *found = OlvShortcut::fromAddress(wild);
            Storm::check(!found || reinterpret_cast<qulonglong>(found) == wild,
                         "an address finds itself");
        }
    }

    void activate(OlvShortcut *shortcut)
    {
        const bool isActive = shortcut->active();
        Storm::check(!isActive || QGuiApplication::platformName() == QLatin1String("xcb"),
                     "nothing is registered where there is no server");
        Storm::check(!isActive || shortcut->active(), "what is registered stays so");
    }

    OlvShortcut *make()
    {
        static constexpr std::array<int, 10> keys{
            Qt::Key_A,     Qt::Key_F5,     Qt::Key_Exclam,  Qt::Key_Space,   Qt::Key_Shift,
            Qt::Key_Print, Qt::Key_Escape, Qt::Key_unknown, Qt::Key_Super_L, 0,
        };
        const int key = m_dice.coin() ? m_dice.pick(keys)
            : m_dice.coin()           ? m_dice.between(Qt::Key_0, Qt::Key_Z)
                                      : m_dice.number() & 0x1ffffff;
        const quint64 held = m_dice.bits();
        auto *made = new OlvShortcut(Qt::Key(key), held & 1, held & 2, held & 4, held & 8,
                                     m_dice.oneIn(4) ? this : nullptr);
        connect(made, &OlvShortcut::activated, this, [this] {
            if (m_depth < deepest && m_dice.oneIn(4)) {
                ++m_depth;
                step();
                --m_depth;
            }
        });
        connect(made, &OlvShortcut::activated, this, [this, made] {
            if (m_dice.oneIn(16)) {
                delete made;
            }
        });
        return made;
    }

    Dice &m_dice;
    QVector<QPointer<OlvShortcut>> m_shortcuts = QVector<QPointer<OlvShortcut>>(mostShortcuts);
    int m_depth = 0;
};

} // namespace

int main(int argc, char **argv)
{
    keep(nullptr); // so that it is there before everything that the libraries make
    return Storm::run(argc, argv, "systeminfo",
                      [](Dice &dice) { return std::make_unique<SystemInfoEpisode>(dice); });
}

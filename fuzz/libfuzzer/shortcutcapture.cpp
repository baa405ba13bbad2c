// SPDX-License-Identifier: MIT
#include "fuzztarget.h"
#include "shortcutstandin.h"

#include <OlvWidgets/input.h>

#include <QApplication>
#include <QFocusEvent>
#include <QKeyEvent>

#include <array>
#include <memory>

namespace {

/** The documented behaviour of the field, implemented a second time. */
class Model
{
public:
    void press(int key)
    {
        if (!m_isRecording) {
            m_held = {};
            m_key = Qt::Key_unknown;
            m_isRecording = true;
        }
        if (bool *modifier = flagOf(key)) {
            *modifier = true;
        } else {
            m_key = key;
        }
    }

    /** Whether this release makes a shortcut. */
    bool release(int key)
    {
        bool *modifier = flagOf(key);
        if (modifier) {
            *modifier = false;
        }
        const bool isMade = !modifier && m_key != Qt::Key_unknown;
        const bool isAnyHeld = m_held[0] || m_held[1] || m_held[2] || m_held[3];
        if (m_key == Qt::Key_unknown && !isAnyHeld) {
            m_isRecording = false;
        }
        return isMade;
    }

    /** The key of the shortcut; Qt::Key_unknown for a number that is no key. */
    int key() const
    {
        return m_key < 0 || m_key > Qt::Key_unknown ? int(Qt::Key_unknown) : m_key;
    }

    QString text() const
    {
        return ShortcutStandIn::textOf(key(), m_held[0], m_held[1], m_held[2], m_held[3]);
    }

private:
    bool *flagOf(int key)
    {
        static constexpr std::array<int, 4> modifiers{ Qt::Key_Control, Qt::Key_Shift, Qt::Key_Alt,
                                                       Qt::Key_Meta };
        for (size_t i = 0; i < modifiers.size(); ++i) {
            if (modifiers[i] == key) {
                return &m_held[i];
            }
        }
        return nullptr;
    }

    std::array<bool, 4> m_held{};
    int m_key = 0;
    bool m_isRecording = false;
};

/** Notes the signals of a field, in their order. */
class Signals : public QObject
{
public:
    explicit Signals(OlvShortcutEdit &edit)
    {
        connect(&edit, &OlvShortcutEdit::shortcutChanged, this, [this](OlvShortcut *shortcut) {
            told.append(QStringLiteral("shortcut ") + shortcut->toString());
        });
        connect(&edit, &OlvWidget::valueChanged, this, [this](const QVariant &value) {
            told.append(QStringLiteral("value ") + value.toString());
        });
    }

    QStringList told;
};

int keyOf(FuzzInput &input)
{
    static constexpr std::array<int, 12> keys{
        Qt::Key_Control, Qt::Key_Shift,       Qt::Key_Alt,
        Qt::Key_Meta,    Qt::Key_A,           Qt::Key_B,
        Qt::Key_Escape,  Qt::Key_Backspace,   0,
        Qt::Key_unknown, Qt::Key_Control + 1, Qt::Key_AltGr,
    };
    const int choice = input.byte();
    return size_t(choice) < keys.size() * 16 ? keys[size_t(choice) % keys.size()] : input.number();
}

void send(OlvShortcutEdit &edit, QEvent::Type type, int key, int modifiers, bool isRepeat)
{
    // the field must ignore the event's modifiers
    QKeyEvent event(type, key, Qt::KeyboardModifiers(modifiers << 25), QString(), isRepeat);
    QCoreApplication::sendEvent(&edit, &event);
}

} // namespace

// the stand-in defines the class that the library defines as well
// NOLINTBEGIN(bugprone-reserved-identifier): the sanitizer looks for this name
extern "C" const char *__asan_default_options();
extern "C" __attribute__((visibility("default"))) const char *__asan_default_options()
{
    return "detect_odr_violation=0";
}
// NOLINTEND(bugprone-reserved-identifier)

int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // never deleted, since it is needed until the program ends
    new QApplication(*argc, *argv);
    return 0;
}

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    FuzzInput input(data, size);
    auto owned = std::make_unique<OlvShortcutEdit>();
    OlvShortcutEdit &edit = *owned;
    const Signals heard(edit);
    Model model;
    QString expected = QStringLiteral("nullptr");
    QStringList told;
    const int refused = keyOf(input);
    ShortcutStandIn::refuse(refused);
    while (!input.isEmpty()) {
        const int action = input.byte();
        switch (action % 8) {
        case 0:
        case 1:
        case 2: {
            const int key = keyOf(input);
            send(edit, QEvent::KeyPress, key, action >> 4, action & 8);
            model.press(key);
            break;
        }
        case 3:
        case 4:
        case 5: {
            const int key = keyOf(input);
            send(edit, QEvent::KeyRelease, key, action >> 4, action & 8);
            if (model.release(key) && model.key() != refused) {
                expected = model.text();
                told << QStringLiteral("shortcut ") + expected
                     << QStringLiteral("value ") + expected;
            }
            break;
        }
        case 6: {
            QFocusEvent event(action & 8 ? QEvent::FocusIn : QEvent::FocusOut);
            QCoreApplication::sendEvent(&edit, &event);
            edit.setProperty("Temp", input.number());
            break;
        }
        default:
            edit.clear();
            expected = QStringLiteral("nullptr");
        }
        const bool isHeld = expected != QLatin1String("nullptr");
        require(edit.getValue() == QVariant(expected), "the value");
        require((edit.shortcut() != nullptr) == isHeld, "whether one is held");
        require(ShortcutStandIn::living() == (isHeld ? 1 : 0), "one lives, or none");
        require(edit.property("HasOlvShortcut") == QVariant(isHeld), "the property");
        require(heard.told == told, "the signals");
    }
    owned.reset();
    require(ShortcutStandIn::living() == 0, "none outlives the field");
    return 0;
}

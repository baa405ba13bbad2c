// SPDX-License-Identifier: MIT
#pragma once

#include "freeshortcut.h"

#include <OlvSystemInfo/OlvSystemInfo>
#include <OlvWidgets/OlvWidgets>

#include <QApplication>
#include <QDataWidgetMapper>
#include <QDebug>
#include <QDialog>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QThread>

// The context that the examples of the classes' documentation assume: files named after
// the classes, which extract-examples takes out of the headers.

inline void saveWindowPlaces() { }

// not run: a program has one application and one main()
namespace autoDestroy {
int main(int argc, char **argv);
#include "OlvAutoDestroy.inc"
} // namespace autoDestroy
inline void startWithFonts(int argc, char **argv, QLabel &label)
{
#include "OlvGlobal.inc"
}

class Settings : public QObject
{
public:
    QVariant value(const QString &key) const
    {
        return m_values.value(key);
    }
    void store(const QString &key, const QVariant &value)
    {
        m_values.insert(key, value);
    }

private:
    QHash<QString, QVariant> m_values;
};

#include "OlvWidget.inc"

class Link : public QWidget
{
public:
    Link()
        : label(new QLabel(this))
    {
#include "OlvPluginEventFilter.inc"
    }
    void openLink()
    {
        ++opened;
    }
    QLabel *label;
    int opened = 0;
};

class Editor : public QWidget
{
public:
    Editor()
    {
#include "OlvButton.inc"
        button = save;
    }
    void save()
    {
        ++saved;
    }
    OlvButton *button;
    int saved = 0;
};

class Desktop : public QWidget
{
public:
    Desktop()
    {
#include "OlvIconButton.inc"
        tile = mail;
    }
    void select()
    {
        ++selected;
    }
    void openMail()
    {
        ++opened;
    }
    OlvIconButton *tile;
    int selected = 0;
    int opened = 0;
};

class Page : public QWidget
{
public:
    Page()
    {
#include "OlvSimpleIconButton.inc"
        button = star;
    }
    void setStarred(bool on)
    {
        starred = on;
    }
    OlvSimpleIconButton *button;
    bool starred = false;
};

class Login : public QWidget
{
public:
    Login()
        : login(new OlvButton(this))
    {
#include "OlvLineEdit.inc"
        line = password;
    }
    void check(const QString &text)
    {
        checked = text;
    }
    OlvButton *login;
    OlvLineEdit *line;
    QString checked;
};

class Recorder : public QWidget
{
public:
    void addShortcutEdit()
    {
#include "OlvShortcutEdit.inc"
        field = edit;
    }
    void addShortcut()
    {
#include "OlvShortcut.inc"
        key = shortcut;
    }
    void start()
    {
        ++started;
    }
    OlvShortcutEdit *field = nullptr;
    OlvShortcut *key = nullptr;
    int started = 0;
};

struct Player
{
    void setVolume(int percent)
    {
        volume = percent;
    }
    int volume = -1;
};

class Mixer : public QWidget
{
public:
    Mixer()
        : okButton(new QPushButton(this))
        , player(&m_player)
    {
#include "OlvSlider.inc"
        slider = volume;
    }
    QPushButton *okButton;
    Player *player;
    OlvSlider *slider;

private:
    Player m_player;
};

class Radio : public QObject
{
public:
    void setEnabled(bool on)
    {
        enabled = on;
    }
    bool enabled = false;
};

class Panel : public QWidget
{
public:
    Panel()
        : radio(new Radio)
    {
        radio->setParent(this);
#include "OlvSwitch.inc"
        toggle = wifi;
    }
    Radio *radio;
    OlvSwitch *toggle;
};

class Profile : public QDialog
{
public:
    Profile()
        : dialog(this)
    {
#include "OlvFormSupport.inc"
    }
    QDialog *dialog;
};

class Window : public QWidget
{
public:
    Window();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    OlvResizeWidget *m_resizer;
};

#include "OlvResizeWidget.inc"

inline QPoint placeOf(const QWidget &window, OlvResizeItem::ResizeType type)
{
    for (QObject *child : window.children()) {
        auto *handle = dynamic_cast<OlvResizeItem *>(child);
        if (handle && handle->type() == type) {
            return handle->geometry().bottomRight();
        }
    }
    return {};
}

/** As QSqlTableModel has it. */
struct Table : QStandardItemModel
{
    Table()
        : QStandardItemModel(1, 3)
    { }
    int fieldIndex(const QString &name) const
    {
        return int(QStringList({ "name", "notify", "volume" }).indexOf(name));
    }
};

class MappedForm : public QWidget
{
public:
    explicit MappedForm(Table *model){
#include "OlvValueDelegate.inc"
    } OlvLineEdit *name = new OlvLineEdit(this);
    OlvSwitch *notify = new OlvSwitch(this);
    OlvSlider *volume = new OlvSlider(this);
};

class BarWindow : public QWidget
{
public:
    BarWindow()
    {
        BarWindow *window = this;
#include "OlvControlBar.inc"
        buttons = bar->findChildren<QPushButton *>();
    }
    void openSettings()
    {
        ++opened;
    }
    QList<QPushButton *> buttons;
    int opened = 0;
};

struct Item
{
    QChar icon;
    QString name;
};

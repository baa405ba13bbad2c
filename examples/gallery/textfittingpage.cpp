// SPDX-License-Identifier: MIT
#include "page.h"
#include "pages.h"

#include <OlvGlobal>

#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSizeGrip>
#include <QVBoxLayout>

#include <functional>

namespace {

constexpr int pointSize = 24;
constexpr QSize smallestBox(30, 20);
constexpr QSize largestBox(680, 260);

/** Shows a caption at the size that fits, wrapped; resized by the grip in its corner. */
class FittingBox : public QWidget
{
public:
    explicit FittingBox(QWidget *parent)
        : QWidget(parent, Qt::SubWindow)
        , m_grip(new QSizeGrip(this))
    {
        setMinimumSize(smallestBox);
        setMaximumSize(largestBox);
        resize(300, 90);
    }

    /** Called each time the caption has been fitted. */
    void setFitted(const std::function<void()> &fitted)
    {
        m_fitted = fitted;
    }
    void setText(const QString &text)
    {
        m_text = text;
        fit();
    }
    int fittedPointSize() const
    {
        return m_font.pointSize();
    }
    int lines() const
    {
        return OlvGlobal::adaptDocumentOfLine(m_text, width(), m_font);
    }
    QSize textSize() const
    {
        return OlvGlobal::autoSize(m_text, m_font);
    }

protected:
    void resizeEvent(QResizeEvent * /*event*/) override
    {
        m_grip->resize(m_grip->sizeHint());
        m_grip->move(width() - m_grip->width(), height() - m_grip->height());
        fit();
    }
    void paintEvent(QPaintEvent * /*event*/) override
    {
        QPainter painter(this);
        // two fills instead of an outline, half of which would be clipped at scales such as 1.5
        painter.fillRect(rect(), QColor(64, 158, 255));
        painter.fillRect(rect().adjusted(1, 1, -1, -1), QColor(236, 245, 255));
        painter.setPen(QColor(48, 49, 51));
        painter.setFont(m_font);
        painter.drawText(rect(), Qt::TextWrapAnywhere | Qt::TextWordWrap, m_text);
    }

private:
    void fit()
    {
        m_font = QFont(font().family(), pointSize);
        m_font.setPointSize(OlvGlobal::adaptDocumentToPointSize(m_text, size(), m_font));
        update();
        if (m_fitted) {
            m_fitted();
        }
    }

    std::function<void()> m_fitted;
    QSizeGrip *m_grip;
    QString m_text;
    QFont m_font;
};

} // namespace

Page *createTextFittingPage(QWidget *parent)
{
    auto *page = new Page(
        QStringLiteral("Text fitting"),
        QStringLiteral("OlvGlobal: drag the corner of the box. The caption shrinks from %1 points "
                       "until it fits, wrapped so that words and numbers stay whole.")
            .arg(pointSize),
        parent);

    auto *caption = new QLineEdit(
        QStringLiteral("Every caption finds the size at which it fits, 从1到100都可以"));
    auto *lines = new QLabel;
    auto *size = new QLabel;
    auto *single = new QLabel;
    auto *form = new QFormLayout;
    form->setHorizontalSpacing(24);
    form->addRow(QStringLiteral("Caption"), caption);
    form->addRow(QStringLiteral("Lines"), lines);
    form->addRow(QStringLiteral("Point size"), size);
    form->addRow(QStringLiteral("On one line"), single);
    page->content()->addLayout(form);

    auto *stage = new QWidget;
    stage->setMinimumHeight(largestBox.height());
    page->content()->addWidget(stage);
    page->content()->addStretch();

    auto *box = new FittingBox(stage);
    const auto show = [=] {
        lines->setText(QString::number(box->lines()));
        size->setText(QString::number(box->fittedPointSize()));
        single->setText(QStringLiteral("%1 × %2 pixels")
                            .arg(box->textSize().width())
                            .arg(box->textSize().height()));
    };
    box->setFitted(show);
    QObject::connect(caption, &QLineEdit::textChanged, box, &FittingBox::setText);
    box->setText(caption->text());
    return page;
}

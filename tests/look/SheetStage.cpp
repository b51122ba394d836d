// SPDX-License-Identifier: MIT
#include "SheetStage.h"

#include <QVBoxLayout>

namespace {

const QSize panelSize(640, 480);

} // namespace

SheetPlace currentPlace()
{
    QFETCH(int, place);
    return SheetPlace(place);
}

SheetTime currentTime()
{
    QFETCH(int, time);
    return SheetTime(time);
}

SheetStage::SheetStage(const QString &sheet, SheetPlace place, SheetTime time, DeviceType type)
    : m_view(type, panelSize, PanelView::Frameless)
    , m_place(place)
{
    (new QVBoxLayout(&m_window))->addWidget(&m_view);
    m_window.show();
    if (time == BeforeKeypad)
        setSheet(sheet);
    m_keypad.reset(currentKind().create(&m_view, Qt::WindowFlags()));
    if (time == BeforeShow)
        setSheet(sheet);
    dialog()->show();
    QApplication::processEvents();
    if (time == AfterShow)
        setSheet(sheet);
    QApplication::processEvents();
}

SheetStage::~SheetStage()
{
    removeSheet();
    m_keypad.reset();
    m_view.setParent(nullptr); // which is no child to be deleted
}

void SheetStage::setSheet(const QString &sheet)
{
    if (m_place == OnApplication)
        qApp->setStyleSheet(sheet);
    else if (m_place == OnWindow)
        m_window.setStyleSheet(sheet);
    else if (m_place == OnView)
        m_view.setStyleSheet(sheet);
    else
        dialog()->setStyleSheet(sheet);
}

QWidgetList widgetsOf(QDialog *keypad)
{
    return QWidgetList() << keypad << keypad->findChildren<QWidget *>();
}

QString fontOf(const QWidget *widget)
{
    const QFont font = widget->font();
    QStringList parts(font.family());
    parts << font.styleName();
    const int numbers[] = { font.pixelSize(),
                            font.pointSize(),
                            int(font.weight()),
                            int(font.style()),
                            font.underline(),
                            font.overline(),
                            font.strikeOut(),
                            font.stretch(),
                            int(font.capitalization()),
                            int(font.letterSpacingType()),
                            qRound(font.letterSpacing()),
                            qRound(font.wordSpacing()),
                            font.kerning(),
                            int(font.styleStrategy()),
                            int(font.hintingPreference()) };
    for (int number : numbers)
        parts << QString::number(number);
    return parts.join(u(" "));
}

QStringList fontsOf(QDialog *keypad)
{
    QStringList fonts;
    const QWidgetList widgets = widgetsOf(keypad);
    for (const QWidget *widget : widgets)
        fonts << QLatin1String(widget->metaObject()->className()) + u(" ") + widget->objectName()
                + u(": ") + fontOf(widget);
    return fonts;
}

QStringList plainFonts()
{
    AnyStage stage;
    stage.open();
    return fontsOf(stage.dialog());
}

// SPDX-License-Identifier: MIT
#include "FacePainter.h"

#include "Operator.h"
#include "PanelSetup.h"
#include "Theme.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QPixmap>
#include <QScopedPointer>
#include <QSpinBox>
#include <QStringList>

namespace {

const int mostMilliseconds = 1000;

void tap(QWidget *part)
{
    if (QAbstractButton *key = qobject_cast<QAbstractButton *>(part)) {
        key->click();
    } else if (QSpinBox *field = qobject_cast<QSpinBox *>(part)) {
        field->setFocus();
        field->selectAll();
    }
}

} // namespace

FacePainter::FacePainter()
{
    m_view.setFrameShape(QFrame::NoFrame);
    HMIDeviceInfo::setGraphicsView(&m_view);
}

FacePainter::~FacePainter()
{
    HMIDeviceInfo::setGraphicsView(nullptr);
}

bool FacePainter::setLanguage(const Language &language)
{
    QApplication::removeTranslator(&m_translator);
    if (!language.isTranslation)
        return true;
    return m_translator.load(findTranslation(QLatin1String(language.name)))
        && QApplication::installTranslator(&m_translator);
}

void FacePainter::setLook(const Look &look)
{
    HMIDeviceInfo::setDeviceInfo(look.type, QSize());
    applyTheme(Style::Light);
}

// A keypad that does not become active is drawn all the same, without the focus.
void FacePainter::show(QWidget *keypad)
{
    keypad->show();
    QElapsedTimer timer;
    timer.start();
    while (!(Operator::isOnScreen(keypad) && Operator::isActive(keypad))
           && timer.elapsed() < mostMilliseconds)
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    QApplication::processEvents();
}

QImage FacePainter::draw(const KeypadKind &kind, const Face &face, const QSize &size)
{
    m_view.setFixedSize(size);
    m_view.show();
    QApplication::processEvents(); // the viewport follows the view
    m_target.setGeometry(m_view.viewport()->rect());

    const QScopedPointer<QDialog> keypad(kind.create(&m_view, &m_target, face));
    show(keypad.data());
    const QStringList taps = QString::fromLatin1(face.taps).split(QLatin1Char(' '));
    for (const QString &name : taps)
        tap(keypad->findChild<QWidget *>(name));
    QApplication::processEvents();
    return keypad->grab().toImage();
}

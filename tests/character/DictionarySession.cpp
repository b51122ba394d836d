// SPDX-License-Identifier: MIT
#include "DictionarySession.h"

#include <QApplication>

namespace {

// A key asks once, and once more after reading the columns anew where a file could not be read.
const int mostReadings = 4;
const int mostRows = 256; // what a model fetches at first

} // namespace

DictionarySession::DictionarySession()
    : m_keypad(new CharacterKeypad(HMIDeviceInfo::graphicsView(), Qt::WindowFlags()))
    , m_model(m_keypad->findChild<QSqlTableModel *>())
{
    m_keypad->setObject(&m_target);
    if (HMIDeviceInfo::graphicsView())
        m_keypad->show();
    if (m_model)
        m_readings.reset(new QSignalSpy(m_model, SIGNAL(modelReset())));
}

DictionarySession::~DictionarySession() = default;

void DictionarySession::type(const QString &labels)
{
    const QStringList list = labels.split(QLatin1Char(' '));
    for (const QString &label : list) {
        QToolButton *key = shownKey(*m_keypad, label);
        if (!key)
            return note(QString::fromLatin1("no key \"%1\"").arg(label));
        tapKey(key);
        if (HMIDeviceInfo::graphicsView())
            QApplication::processEvents();
        noteReadings(label);
    }
}

void DictionarySession::workInChinese()
{
    if (languageKey(*m_keypad)->text() == u("EN"))
        type("EN");
    type("CN n i > > < Space Del Del h a o");
    tapCandidate(*m_keypad, 0);
    type("z h u");
    tapCandidate(*m_keypad, 4);
    type("n i *# && << n i , Del Del");
}

void DictionarySession::workInEnglish()
{
    m_keypad->setText(QString());
    if (languageKey(*m_keypad)->text() == u("EN"))
        type("n i EN");
    type("o k Enter");
    if (m_target.text() != u("ok"))
        note(u("English gave ") + m_target.text());
}

QString DictionarySession::complaint()
{
    m_keypad.reset();
    if (!m_log.messages().isEmpty())
        note(m_log.messages().join(u("\n")));
    return m_complaint;
}

void DictionarySession::finish()
{
    workInChinese();
    workInEnglish();
    QCOMPARE(complaint(), QString());
}

void DictionarySession::note(const QString &complaint)
{
    if (m_complaint.isEmpty())
        m_complaint = complaint;
}

void DictionarySession::noteReadings(const QString &label)
{
    if (!m_model)
        return;
    if (m_readings->count() > mostReadings || m_model->rowCount() > mostRows)
        note(QString::fromLatin1("\"%1\" read %2 times, %3 rows at last")
                 .arg(label)
                 .arg(m_readings->count())
                 .arg(m_model->rowCount()));
    m_readings->clear();
}

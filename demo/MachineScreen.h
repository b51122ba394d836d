// SPDX-License-Identifier: MIT
#ifndef MACHINESCREEN_H
#define MACHINESCREEN_H

#include <QWidget>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;
class QLabel;
class QStackedWidget;
class TouchField;

// The screen of a machine tool: pages of fields, chosen by the soft keys at the bottom, beneath a
// line with the page's title, messages and the operating mode.
//
// It is laid out for HMIDeviceInfo::screenSize() as that is when the screen is built.
class MachineScreen : public QWidget
{
    Q_OBJECT

public:
    explicit MachineScreen(QWidget *parent);

    // The field of this name, or null.
    TouchField *field(const QString &name) const;

    // The soft key of the page with this Latin name, or null.
    QAbstractButton *softKey(const QString &page) const;

    // The Latin name of the page that is shown.
    QString page() const;

    // Ignores a page that does not exist.
    void openPage(const QString &page);

    QString message() const;

public Q_SLOTS:
    void showMessage(const QString &text);

Q_SIGNALS:
    void fieldTapped(TouchField *field);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private Q_SLOTS:
    void showPage();

private:
    QWidget *createTopBar();
    QWidget *createSoftKeys();
    QWidget *createPositionPage();
    QWidget *createProgramPage();
    QWidget *createOffsetPage();
    QWidget *createParameterPage();
    QWidget *createSystemPage();

    QWidget *createCard();
    QWidget *createAxis(const char *name);
    QWidget *createGauge(const char *name);
    QWidget *createRow(const char *name, QWidget *belowLabel = nullptr);
    TouchField *createField(const char *name, int pixels, QWidget *parent);
    QLabel *createLabel(const char *text, QWidget *parent);
    QWidget *createPage(QBoxLayout *layout);

    bool m_upright;
    int m_unit; // pixels; the height of a line with its space
    QStackedWidget *m_pages;
    QButtonGroup *m_softKeys;
    QLabel *m_title;
    QLabel *m_message;
};

#endif

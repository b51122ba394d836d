// SPDX-License-Identifier: MIT
#ifndef VISITS_H
#define VISITS_H

#include <QDialog>
#include <QLineEdit>
#include <QObject>
#include <QScopedPointer>

// How an operator fills one field in, and what then stands in it.
struct Visit
{
    enum Kind { Numeric, GCode, Axis, DateTime, Character };

    Kind kind;
    int panelType;
    const char *text; // that the field has before
    const char *taps; // labels separated by blanks; "1st" and "2nd" are candidates
    int hardKey;      // that closes the keypad, or 0 where a tap does
    const char *result;
    int editMode;  // of keypads with a fixed face
    int maxLength; // 0 for any
};

int visitCount();
const Visit &visitAt(int index);

// Where keypads come from: the process's own ones, or new ones, each for a single visit. Or bare
// dialogs take their place, which shows what Qt itself leaves behind.
enum Source { BareDialogs, KeptKeypads, NewKeypads };

// Fills fields in. Ends the program where one gets another text than it should.
class Operator : public QObject
{
    Q_OBJECT

public:
    explicit Operator(Source source)
        : m_source(source)
        , m_visit(nullptr)
        , m_keypad(nullptr)
        , m_isPainted(false)
    {
    }

    // The keypad is painted only where \a isPainted.
    void fillIn(const Visit &visit, bool isPainted);

private Q_SLOTS:
    void work();

private:
    void openBareDialog();
    template <class Keypad>
    void use();
    template <class Keypad>
    void open(Keypad *keypad);

    const Source m_source;
    const Visit *m_visit;
    QDialog *m_keypad;
    bool m_isPainted;
    QLineEdit m_fields[3];
    QScopedPointer<QDialog> m_bareDialogs[5];
};

#endif

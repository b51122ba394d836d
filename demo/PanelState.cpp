// SPDX-License-Identifier: MIT
#include "PanelState.h"

#include "MachineScreen.h"
#include "TouchField.h"

PanelState readState(const MachineScreen &screen)
{
    PanelState state;
    state.page = screen.page();
    state.message = screen.message();
    const QList<TouchField *> fields = screen.findChildren<TouchField *>();
    for (const TouchField *field : fields)
        state.texts.insert(field->objectName(), field->text());
    return state;
}

void restoreState(MachineScreen *screen, const PanelState &state)
{
    if (!state.page.isEmpty())
        screen->openPage(state.page);
    for (auto text = state.texts.constBegin(); text != state.texts.constEnd(); ++text) {
        if (TouchField *field = screen->field(text.key()))
            field->setText(text.value());
    }
    screen->showMessage(state.message);
}

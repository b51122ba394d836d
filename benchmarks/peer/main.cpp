// SPDX-License-Identifier: MIT
#include "Panel.h"

#include <QApplication>

namespace {

const struct
{
    const char *name;
    Panel::Input input;
} inputs[] = { { "none", Panel::NoInput },
               { "keypad", Panel::KeypadInput },
               { "keyboard", Panel::KeyboardInput } };

} // namespace

// hmi-peer none|keypad|keyboard text|digits WIDTH HEIGHT: benchmarks/compare starts it and taps on
// it.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    QApplication::setCursorFlashTime(0);
    for (const auto &entry : inputs) {
        if (arguments.size() == 5 && arguments.at(1) == QLatin1String(entry.name)) {
            Panel panel(entry.input, arguments.at(2) == QLatin1String("digits"),
                        QSize(arguments.at(3).toInt(), arguments.at(4).toInt()));
            panel.show();
            return application.exec();
        }
    }
    return 2;
}

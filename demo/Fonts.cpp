// SPDX-License-Identifier: MIT
#include "Fonts.h"

#include <QApplication>
#include <QFont>
#include <QFontInfo>

namespace {

// Families with Latin and Chinese characters, the first one that is installed is taken.
const char *const families[] = { "WenQuanYi Micro Hei", "Noto Sans CJK SC", "Noto Sans SC",
                                 "Source Han Sans SC", "Droid Sans Fallback" };

bool isInstalled(const QString &family)
{
    return QFontInfo(QFont(family)).family().compare(family, Qt::CaseInsensitive) == 0;
}

QString findFamily()
{
    for (const char *family : families) {
        if (isInstalled(QLatin1String(family)))
            return QLatin1String(family);
    }
    return QFontInfo(QApplication::font()).family();
}

} // namespace

void chooseFonts()
{
    const QString keypadFamily = QLatin1String("simsun");
    const QString family = findFamily();
    QFont font = QApplication::font();
    font.setFamily(family);
    QApplication::setFont(font);
    if (!isInstalled(keypadFamily))
        QFont::insertSubstitution(keypadFamily, family);
}

// SPDX-License-Identifier: MIT
#ifndef ORDINARYUSER_H
#define ORDINARYUSER_H

#include "support/DictionaryFile.h"

#include <QFileInfo>

#include <unistd.h>

// Where the test runs as the superuser, who may read anything, it is another user meanwhile: the
// one who owns the test's directory, as others may have no way into it.
class OrdinaryUser
{
public:
    OrdinaryUser()
        : m_former(geteuid())
    {
        const uid_t owner = QFileInfo(DictionaryFile::directory()).ownerId();
        if (m_former == superuser)
            change(owner == superuser ? uid_t(nobody) : owner);
    }
    ~OrdinaryUser()
    {
        if (m_former == superuser)
            change(superuser);
    }

private:
    static void change(uid_t user)
    {
        if (seteuid(user) != 0)
            qFatal("cannot become user %u", unsigned(user));
    }

    enum { superuser = 0, nobody = 65534 };

    uid_t m_former;
};

#endif

# SPDX-License-Identifier: MIT
#
# A public header without what is not for its users: Qt's event handlers that a class has its own of.

/^    void [A-Za-z]+Event\(.*\) override;$/ { $0 = "" }
{ print }

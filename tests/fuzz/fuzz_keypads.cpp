// SPDX-License-Identifier: MIT
#include "Promise.h"
#include "model/CharacterModel.h"
#include "model/Run.h"
#include "support/Text.h"

#include <cstdint>

// What is done to a keypad is done to its model too, and the two must not differ. The first byte of
// an input tells which keypad, the rest what is done.

namespace {

class Words
{
public:
    Words() { m_file.create(modelWords()); }

private:
    DictionaryFile m_file;
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const Words words;
    if (size == 0)
        return 0;
    Report report;
    const bool same = runActions(KeypadName(data[0] % KeypadCount), data + 1, size - 1, &report);
    promise(same, "a keypad does what its rules tell", report.failure);
    return 0;
}

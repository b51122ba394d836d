// SPDX-License-Identifier: MIT
#ifndef FIXEDFACEMODEL_H
#define FIXEDFACEMODEL_H

#include "KeypadModel.h"

// The keypads whose keys never change: what they share, and each of them.

class FixedFaceModel : public KeypadModel
{
public:
    void setObject(int target) override;
    void setLimitToolTip(const QString &text) override;
    int likelyKey(int choice) const override;

protected:
    // The labels of the keys, separated by blanks, and of the keys that do something else than to
    // type their label; a keypad without one of these has a null pointer there.
    struct Face
    {
        const char *keys;
        const char *space;
        const char *sign;
    };

    FixedFaceModel(World *world, const Face &face);
    void act(int key) override;
    void setLabelEnabled(const QString &label, bool enabled);

private:
    Face m_face;
};

class NumericModel : public FixedFaceModel
{
public:
    explicit NumericModel(World *world);

    void setEditMode(int mode) override;
    void setDecimalPointEnabled(bool enabled) override;
};

class GCodeModel : public FixedFaceModel
{
public:
    explicit GCodeModel(World *world);

    void open(const ViewPlace &view, const TargetPlace &target) override;

private:
    bool coversTarget() const;
};

class AxisModel : public FixedFaceModel
{
public:
    explicit AxisModel(World *world);
};

#endif

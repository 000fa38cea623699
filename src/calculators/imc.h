#pragma once

#include "core/accessor.h"
#include "steppedfields.h"

namespace vorkan {

// Body mass index: the index and its class, the weight bands for the height, and the
// ideal and lean weights. Each calculation stores height and weight in the record.
class imc : public SteppedWindow {
public:
    static constexpr QStringView FullName = u"imc.imc";

    void imcaide_Action();
    void imcaide_MouseExit();

protected:
    void CreateControls() override;
    void Event_Open() override;
    void calc() override;

private:
    friend class ImplicitWindows;
    imc();

    void writeBands(Double heightSquaredInMetres);
    void writeClass();
    void writeIdealWeights(Single height);
    void writeLeanWeights(Single weight, Single height);
};

VORKAN_ACCESSOR(imc)

} // namespace vorkan

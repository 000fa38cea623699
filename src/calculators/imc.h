#pragma once

#include "accessor.h"
#include "steppedfields.h"

namespace vorkan {

// Body mass index: the index and its class, the weight bands for the height, and the
// ideal and lean weights. Each calculation stores height and weight in the record.
class imc : public SteppedWindow {
public:
    static constexpr QStringView FullName = u"imc.imc";

    bool taille_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    bool taille_KeyDown(const QString& Key);
    void taille_KeyUp();
    bool UpDownArrows1_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    void UpDownArrows1_Down();
    void UpDownArrows1_Up();
    bool poids_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    bool poids_KeyDown(const QString& Key);
    void poids_KeyUp();
    bool UpDownArrows2_MouseWheel(Int32 X, Int32 Y, Int32 deltaX, Int32 deltaY);
    void UpDownArrows2_Down();
    void UpDownArrows2_Up();
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

    ControlRef<TextField> taille{this, u"taille"};
    ControlRef<UpDownArrows> UpDownArrows1{this, u"UpDownArrows1"};
    ControlRef<TextField> poids{this, u"poids"};
    ControlRef<UpDownArrows> UpDownArrows2{this, u"UpDownArrows2"};
    ControlRef<TextField> imct{this, u"imct"};
    ControlRef<StaticText> imclab{this, u"imclab"};
    // The weight bands, from Dénutrition to Obésité morbide.
    ControlRef<StaticText> bands[7]{{this, u"imcde"}, {this, u"imcma"}, {this, u"imcn"},
                                    {this, u"imcsu"}, {this, u"imcom"}, {this, u"imcos"},
                                    {this, u"imcomo"}};
    ControlRef<PushButton> imcaide{this, u"imcaide"};
    ControlRef<StaticText> poidsidealh{this, u"poidsidealh"};
    ControlRef<StaticText> poidsidealf{this, u"poidsidealf"};
    ControlRef<StaticText> poidsmaigreh{this, u"poidsmaigreh"};
    ControlRef<StaticText> poidsmaigref{this, u"poidsmaigref"};
};

VORKAN_ACCESSOR(imc)

} // namespace vorkan

// The frame "Wheeling" of the Quick Pick tab. Every window that has it checks what is typed; only frm645 acts
// on it.
#pragma once

#include <string>

#include "forms/ControlArray.h"
#include "forms/Label.h"
#include "forms/LabelFrame.h"
#include "forms/OptionButton.h"
#include "forms/TextBox.h"
#include "quickpick/Wheel.h"

namespace sorvane {

class GameFrame;

class WheelControls final : public WheelFace {
  public:
    // `generate`: where the focus goes when the numbers are chosen.
    WheelControls(GameFrame& window, forms::Control& generate);

    // The frame before its contents.
    forms::LabelFrame fraWheel{"fraWheel", "Wheeling"};
    forms::ControlArray<forms::OptionButton> optWheelType{"optWheelType"};  // index: WheelType
    forms::Label lblHowMany{"lblHowMany", "How Many Numbers:"};
    forms::TextBox txtHowMany{"txtHowMany"};
    forms::Label txtEnterFavs{"txtEnterFavs", "Favourites"};
    forms::ControlArray<forms::TextBox> txtFavs{"txtFavs"};

    // The option that is on; Hot while none is.
    WheelType Chosen() const;
    // The fields in the order of the Tab key.
    void AddToTabOrder(std::vector<QWidget*>& order);

    std::string Favourite(int i) const override { return txtFavs(i).Text(); }
    void ShowFavourite(int i, const std::string& text) override;
    void EmptyFavourites() override;
    void AskForFavourite(int i) override { txtFavs(i).SetFocus(); }
    void RefuseTicketCount() override;

  private:
    void MakeControls();
    void AttachHandlers();
    void LayOut();
    void optWheelType_Click(int Index);
    void txtHowMany_KeyPress(forms::KeyPress& key);
    void txtHowMany_LostFocus();
    void txtFavs_KeyPress(int Index, forms::KeyPress& key);
    void txtFavs_LostFocus(int Index);
    // Takes the value over, or shows what is wrong with it.
    void TakeHowMany();
    void RefuseHowMany(std::string_view text, std::string_view title, bool toZero);
    void OpenFavourites(int howMany);
    // Looks WheelSize up, and warns when more tickets are asked for.
    void CompareWithWheelSize();
    // Where the accepted value of txtHowMany is kept: where nothing is wheeled it is a number of tickets.
    Integer& HowManyKept();

    GameFrame& window_;
    forms::Control& generate_;
};

}  // namespace sorvane

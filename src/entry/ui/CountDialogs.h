// The two small questions of the sheet flow: how many sheets, and how many tickets on this one.
#pragma once

#include <QLabel>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/TextBox.h"
#include "forms/Window.h"
#include "shell/Global.h"

namespace sorvane {

// A number, "&Ok" and "&Cancel". The field takes digits alone; Enter leads to "&Ok". Cancel leaves everything
// as it was.
class CountDialog : public forms::Window {
  protected:
    CountDialog(Session& session, std::string_view name, std::string_view caption, std::string_view question,
                std::string_view field);

    // "&Ok": takes the number over, and unloads or shows what is wrong with it.
    virtual void Accept() = 0;
    // Shows Global::Msg and gives the focus back to the field.
    void Refuse(std::string_view title);

    Session& session_;
    forms::Label lblGetNoOfTicketsOnSheet;
    forms::TextBox field_;
    forms::CommandButton cmdOk{"cmdOk", "&Ok"};
    forms::CommandButton cmdCancel{"cmdCancel", "&Cancel"};

  private:
    void LayOut();
    void KeyPressed(forms::KeyPress& key);
};

// Sets Global::NoOfSheets. More sheets than tickets are refused, but the number stays; zero is accepted.
class frmHowManySheets final : public CountDialog {
  public:
    explicit frmHowManySheets(Session& session);

  private:
    void Accept() override;
};

// Sets Global::NoOfTicketsOnSheet for a sheet that is not the last.
class frmTicketsOnSheet final : public CountDialog {
  public:
    explicit frmTicketsOnSheet(Session& session);

  private:
    void Accept() override;
};

}  // namespace sorvane

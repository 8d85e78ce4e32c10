// The player's guide, read in the program.
#pragma once

#include <string>
#include <string_view>

#include "forms/CommandButton.h"
#include "forms/Label.h"
#include "forms/ListBox.h"
#include "forms/Reader.h"
#include "forms/TextBox.h"
#include "forms/Window.h"

namespace sorvane {

class frmGuide final : public forms::Window {
  public:
    static constexpr std::string_view WindowName = "frmGuide";

    // Reads the file and opens it at the chapter with this heading; empty: at its first page. Without the
    // file the window says where it should be.
    frmGuide(const std::string& path, std::string_view chapter);

  private:
    void LayOut();
    void ListContents();
    void ShowWhere();
    void cmdFindNext_Click();

    forms::Label lblContents{"lblContents", "&Contents"};
    forms::ListBox lstContents{"lstContents"};
    forms::Reader txtGuide{"txtGuide"};
    forms::Label lblSearch{"lblSearch", "&Search"};
    forms::TextBox txtSearch{"txtSearch"};
    forms::CommandButton cmdFindNext{"cmdFindNext", "Find &Next"};
    forms::Label lblFound{"lblFound"};
    forms::CommandButton cmdBack{"cmdBack", "&Back"};
    forms::CommandButton cmdExit{"cmdExit", "E&xit"};
};

}  // namespace sorvane

#include <algorithm>

#include "ColourTexts.h"
#include "vorn/AssetManager.h"
#include "vorn/ColourPicker.h"
#include "vorn/VornButton.h"

namespace {

constexpr int kMargin = 12;
constexpr int kButtonGap = 8;
const wxSize kPlainButton(88, 24);
enum ButtonId : unsigned int { kOkId = 1, kCancelId = 2 };

wxColour SkinColour(const AssetManager& assets, const char* name, const wxColour& fallback) {
  wxColour found;
  return assets.GetColour(name, found) ? found : fallback;
}

}  // namespace

// Ends the dialog when a button is released over itself.
class VornColourDialog::ButtonGroup : public VornControlGroup {
 public:
  explicit ButtonGroup(VornColourDialog* dialog) : m_pDialog(dialog) {}
  void ControlUnSelected(unsigned int id, VornControl*) override {
    m_pDialog->Finish(id == kOkId ? wxID_OK : wxID_CANCEL);
  }

 private:
  VornColourDialog* m_pDialog;
};

VornColourDialog::VornColourDialog(wxWindow* parent, AssetManager& assets, const Color& initial,
                                   int id)
    : wxDialog(parent, id, wxString::FromUTF8(assets.GetMessage(ColourTexts::kDialogTitle))),
      m_pButtons(std::make_unique<ButtonGroup>(this)) {
  using namespace ColourTexts;
  const ColourPickerLook look = ColourPickerLook::FromSkin(assets);
  auto* panel = new VornPanel(0, 0, this, wxID_ANY);
  panel->SetBgColour(look.frame);
  m_pPicker = new ColourPicker(kMargin, kMargin, panel, wxID_ANY, &m_pickerGroup, look);
  m_pPicker->SetInitialRGB(initial);
  m_pPicker->SetColourRGB(initial);

  const VornwxBitmapCache* images = nullptr;
  assets.LoadImagesCached(kButtonImages, images);
  wxFont font;
  if (!assets.GetFont(kButtonFont, font)) font = *wxNORMAL_FONT;
  const wxColour text = SkinColour(assets, kButtonText, look.fieldText);
  const wxColour bright = SkinColour(assets, kButtonTextBright, look.marker);
  const wxColour face = SkinColour(assets, kButtonFace, look.edge);
  auto make = [&](const char* label, unsigned int bid) -> VornControl* {
    const VornString caption = assets.GetMessage(label);
    if (images)
      return new VornTextPushButton(caption, -1, -1, font, text, face, bright, images, 0, 0, panel,
                                    static_cast<int>(bid), m_pButtons.get());
    return new VornTextPushButton(caption, -1, -1, font, text, face, bright, 0, 0, kPlainButton.x,
                                  kPlainButton.y, panel, static_cast<int>(bid), m_pButtons.get());
  };
  m_pOk = make(kOk, kOkId);
  m_pCancel = make(kCancel, kCancelId);

  // OK and Cancel at the bottom right, under the picker.
  const int right = kMargin + ColourPicker::kWidth;
  const int top = kMargin + ColourPicker::kHeight + kMargin;
  const wxSize cancel = m_pCancel->GetSize(), ok = m_pOk->GetSize();
  m_pCancel->Move(right - cancel.x, top);
  m_pOk->Move(right - cancel.x - kButtonGap - ok.x, top);
  const wxSize client(right + kMargin, top + std::max(ok.y, cancel.y) + kMargin);
  panel->SetSize(client.x, client.y);
  SetClientSize(client);
  Bind(wxEVT_CLOSE_WINDOW, &VornColourDialog::OnClose, this);
  SetReturnCode(wxID_CANCEL);
}

VornColourDialog::~VornColourDialog() {
  // The picker and the buttons report to groups this dialog holds.
  DestroyChildren();
}

std::optional<Color> VornColourDialog::Choose() {
  SetReturnCode(wxID_CANCEL);
  ShowModal();
  return GetChosen();
}

std::optional<Color> VornColourDialog::GetChosen() const {
  if (GetReturnCode() != wxID_OK) return std::nullopt;
  Color colour;
  m_pPicker->GetColourRGB(colour);
  return colour;
}

std::optional<Color> VornColourDialog::PickColour(wxWindow* parent, AssetManager& assets,
                                                  const Color& initial) {
  VornColourDialog dialog(parent, assets, initial);
  return dialog.Choose();
}

void VornColourDialog::Finish(int code) {
  SetReturnCode(code);
  if (IsModal())
    EndModal(code);
  else
    Hide();
}

void VornColourDialog::OnClose(wxCloseEvent&) {
  Finish(wxID_CANCEL);
}

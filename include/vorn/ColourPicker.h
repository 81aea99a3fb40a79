#pragma once
// The colour picker: a hue-value field with a grey strip, a saturation slider
// and a frame with numeric fields and previous/current swatches. The three
// parts share one colour through hints in their control group; each takes
// the colour from every hint it did not send itself. Also a ready modal
// dialog hosting a picker.
#include <wx/dialog.h>
#include <wx/font.h>

#include <memory>
#include <optional>
#include <vector>

#include "vorn/VornControl.h"
#include "vorn/VornControlGroup.h"
#include "vornhost/Bitmap.h"
#include "vornhost/Color.h"

class AssetManager;
class VornEdit;
class VornTextPushButton;

// ---- Hints ----------------------------------------------------------------------

// A part changed the colour through its RGB.
class ColourHintCurrentRGB : public VornControlHint {
 public:
  explicit ColourHintCurrentRGB(const Color& colour) : m_colour(colour) {}
  Color m_colour;
};

// A part changed the colour through hue, saturation and value (0..1 each).
class ColourHintCurrentHSV : public VornControlHint {
 public:
  ColourHintCurrentHSV(double h, double s, double v) : m_hue(h), m_saturation(s), m_value(v) {}
  double m_hue;
  double m_saturation;
  double m_value;
};

// The colour to compare with was set.
class ColourHintPrev : public VornControlHint {
 public:
  explicit ColourHintPrev(const Color& colour) : m_colour(colour) {}
  Color m_colour;
};

// ---- Look -----------------------------------------------------------------------

// Colours and fonts of the picker's frame and parts. The defaults match the
// default skin; FromSkin reads the "colourpicker_*" names of a skin.
struct ColourPickerLook {
  wxColour frame{36, 41, 49};         // behind everything
  wxColour edge{84, 95, 110};         // outlines of field, scale and swatches
  wxColour label{142, 151, 163};      // the letters beside the fields
  wxColour fieldText{222, 227, 234};  // numeric fields
  wxColour fieldFill{24, 28, 34};
  wxColour fieldSelection{30, 72, 79};
  wxColour marker{246, 248, 251};     // the field's marker ring
  wxColour markerShadow{10, 12, 15};  // its dark outline
  wxColour slider{56, 189, 196};      // the saturation slider's tab
  wxFont labelFont;                   // wxNullFont: the window's font
  wxFont fieldFont;

  static ColourPickerLook FromSkin(const AssetManager& assets);
};

// ---- The shared base --------------------------------------------------------------

class ColourPickerComp : public VornControl {
 public:
  // ---- Construction
  ColourPickerComp() = default;
  ColourPickerComp(int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group);

  // ---- The colour
  const Color& GetCurrentRGB() const { return m_colour; }
  void GetCurrentHSV(double& h, double& s, double& v) const;
  const Color& GetPreviousRGB() const { return m_previous; }

  // ---- Looks
  virtual void SetLook(const ColourPickerLook& look);
  const ColourPickerLook& GetLook() const { return m_look; }

  // ---- Reactions (override OnColourChanged / OnPreviousChanged to redraw less)
  // Takes the colour of every colour hint this part did not send.
  void OnUpdate(unsigned int id, VornControl* sender, VornControlHint* hint) override;
  // No hover look: the parts keep their picture under the pointer.
  void OnMouseOver() override {}
  void OnMouseDownLeft() override {}
  // Disabling in the middle of a drag ends it.
  void OnEnable(bool enabled) override;

 protected:
  // Applies a colour hint to this part's state; false for other hints.
  bool TakeHint(const VornControlHint* hint);
  void StoreRGB(const Color& colour);
  void StoreHSV(double h, double s, double v);
  virtual void OnColourChanged();
  virtual void OnPreviousChanged();
  // Tell the group; each part has already stored the colour it sends.
  void SendCurrentRGB();
  void SendCurrentHSV();
  void SendPrevious();
  void Send(VornControlHint& hint);

  Color m_colour;
  double m_hue = 0.0;
  double m_saturation = 0.0;
  double m_value = 0.0;
  Color m_previous;
  ColourPickerLook m_look;
};

// ---- Hue and value ----------------------------------------------------------------

// The hue-value field: hue across, value downwards, with a grey strip along
// the bottom, painted for the current saturation. With W x H the client
// size, the field covers x 6..W-7 and y 6..H-2; the strip is the last 20
// rows.
class HueValueControl : public ColourPickerComp {
 public:
  // ---- Construction
  HueValueControl() = default;
  HueValueControl(int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group);

  // ---- The value (clamped to 0..1; redraws, does not notify)
  void SetHueValue(double h, double v);
  void GetHueValue(double& h, double& v) const;

  // ---- Tables and geometry
  // Rebuilds the column and row tables and the field bitmap; called with
  // the client size less the frame (W - 12, H - 7) when the size changes.
  void Recalc(int width, int height);
  // Empties the tables and the field.
  void Clear() override;
  // The marker's pixel for a colour, or for a grey; false outside 0..1.
  bool GetColourPixelPos(double h, double v, int& x, int& y) const;
  bool GetGreyPixelPos(double v, int& x, int& y) const;
  // Picks the colour under (x, y): the field's hue and value (saturation
  // kept), or in the grey strip a grey that keeps the hue. Notifies.
  void SetColourFromPos(int x, int y);
  // Paints the field bitmap from the tables for the current saturation.
  void PaintField();

  const std::vector<double>& GetHueTable() const { return m_hues; }
  // Per row: the value, or -1 for a row of the grey strip.
  const std::vector<double>& GetValueTable() const { return m_values; }
  const Bitmap& GetField() const { return m_field; }
  static constexpr int kFieldLeft = 6;
  static constexpr int kFieldTop = 6;

  // ---- Reactions
  void OnDraw(wxDC* dc) override;
  void OnMouseMove(int x, int y) override;
  void OnMouseDownLeft() override;

 protected:
  // Rebuilds the tables when the client size no longer matches them.
  void EnsureTables();
  void DrawMarker(wxDC& dc) const;

  std::vector<double> m_hues;    // one hue per field column
  std::vector<double> m_values;  // one value per field row, -1 in the strip
  Bitmap m_field;
  wxBitmap m_fieldPicture;          // m_field as painted for m_fieldSaturation
  double m_fieldSaturation = -1.0;  // -1: the field needs painting
};

// ---- Saturation -------------------------------------------------------------------

// The saturation slider: a scale previewing the current hue and value at
// every saturation (full at the top, y 5..115) and a tab beside it.
class SaturationPreview : public ColourPickerComp {
 public:
  // ---- Construction
  SaturationPreview() = default;
  SaturationPreview(int x, int y, int w, int h, wxWindow* parent, int id, VornControlGroup* group);

  // ---- The value: clamped to 0..1; a change redraws and notifies
  void SetSaturation(double s);
  double GetSaturation() const { return m_saturation; }

  // ---- Geometry
  void Recalc();
  static int SatToPos(double s);
  static double PosToSat(int y);
  bool IsSlider(int x, int y) const;
  bool IsScale(int x, int y) const;
  // One pixel of the scale per pixel of drag, and per scroll step.
  static constexpr double kStep = 1.0 / 110.0;

  // ---- Operations
  // Relative to the press: the pointer's travel since the press times the
  // step, a tenth of it while Alt is held.
  void TrackDrag(int x, int y);
  void ScrollUp();
  void ScrollDown();

  // ---- Reactions
  void OnDraw(wxDC* dc) override;
  void DrawScale(wxDC& dc) const;
  void DrawSlider(wxDC& dc) const;
  void OnMouseDownLeft() override;
  void OnMouseMove(int x, int y) override;

 protected:
  wxRect m_scale;            // the preview strip
  wxRect m_tabColumn;        // where the tab travels
  bool m_bDragging = false;  // a press on the slider or scale is held
  double m_pressSaturation = 0.0;
  int m_pressY = 0;

 private:
  void OnWheel(wxMouseEvent& event);
  void OnSize(wxSizeEvent& event);
  wxDECLARE_EVENT_TABLE();
};

// ---- The frame --------------------------------------------------------------------

// The picker: a hue-value field and a saturation slider as its children,
// numeric fields R, G, B, H, S, V ("%0.3f") and "#RRGGBB", and the previous
// and current colours as two swatches side by side. The parts join the
// picker's group under ids wxWidgets assigns (see GetHueValueControl and
// GetSaturationPreview); without a group the picker keeps one of its own.
class ColourPicker : public ColourPickerComp {
 public:
  enum Field { kRed, kGreen, kBlue, kHue, kSaturation, kValue, kHex, kFieldCount };
  static constexpr int kWidth = 434;
  static constexpr int kHeight = 152;

  // ---- Construction
  ColourPicker() = default;
  ColourPicker(int x, int y, wxWindow* parent, int id, VornControlGroup* group,
               const ColourPickerLook& look = ColourPickerLook());
  ~ColourPicker() override;
  virtual bool Create(int x, int y, wxWindow* parent, int id, VornControlGroup* group,
                      const ColourPickerLook& look = ColourPickerLook());
  using VornControl::Create;

  // ---- The colour: each sends its hint, which every part (this one too) takes
  void SetInitialRGB(const Color& colour);
  void SetColourRGB(const Color& colour);
  void SetColourHSV(double h, double s, double v);
  void GetColourRGB(Color& out) const { out = m_colour; }

  // ---- Looks: the frame and its parts follow
  void SetLook(const ColourPickerLook& look) override;
  // The labels' colour, and the frame's.
  void SetFgColour(const wxColour& colour);
  void SetBgColour(const wxColour& colour);

  // ---- Parts
  HueValueControl* GetHueValueControl() const { return m_pHueValue; }
  SaturationPreview* GetSaturationPreview() const { return m_pSaturation; }
  VornEdit* GetField(Field field) const { return m_fields[field]; }
  wxRect GetPreviousSwatch() const;
  wxRect GetCurrentSwatch() const;

  // ---- Reactions
  void OnDraw(wxDC* dc) override;
  // The parts and fields follow the frame.
  void OnEnable(bool enabled) override;
  // Shows the current components in the fields.
  void UpdateEditRGB();
  void UpdateEditHSV();

 protected:
  class FieldReceiver;
  void OnColourChanged() override;
  void OnPreviousChanged() override;
  void BuildFields();
  // A field's finished text: the colour it names, or the field restored.
  void OnFieldText(Field field, const VornString& text);
  void FocusNext(VornEdit* edit);
  // A field shows its component again once it loses the focus (it ignores
  // new texts while focused).
  void OnFieldFocusLost(wxFocusEvent& event);
  void RefreshFields();
  // Takes the hint here, then sends it to the group.
  void Apply(VornControlHint& hint);
  void DrawLabels(wxDC& dc) const;
  void DrawSwatches(wxDC& dc) const;

  HueValueControl* m_pHueValue = nullptr;         // child window
  SaturationPreview* m_pSaturation = nullptr;     // child window
  VornEdit* m_fields[kFieldCount] = {};           // child windows
  std::unique_ptr<VornControlGroup> m_pOwnGroup;  // when created without a group
  VornControlGroup m_fieldGroup;                  // the fields report here
  std::unique_ptr<FieldReceiver> m_pFieldReceiver;
};

// ---- The dialog -------------------------------------------------------------------

// A modal dialog hosting a picker with OK and Cancel buttons from the skin
// ("button_text.sts", messages "OK" and "Cancel").
class VornColourDialog : public wxDialog {
 public:
  VornColourDialog(wxWindow* parent, AssetManager& assets, const Color& initial, int id = wxID_ANY);
  ~VornColourDialog() override;

  // Runs modally: the colour chosen with OK, or none.
  std::optional<Color> Choose();
  // The outcome of the last run, modal or shown without a modal loop.
  std::optional<Color> GetChosen() const;
  // The whole round trip in one call.
  static std::optional<Color> PickColour(wxWindow* parent, AssetManager& assets,
                                         const Color& initial);

  ColourPicker* GetPicker() const { return m_pPicker; }
  VornControl* GetOkButton() const { return m_pOk; }
  VornControl* GetCancelButton() const { return m_pCancel; }
  // Ends a modal run, or hides a dialog shown without one, with wxID_OK or
  // wxID_CANCEL.
  void Finish(int code);

 private:
  class ButtonGroup;
  void OnClose(wxCloseEvent& event);

  VornControlGroup m_pickerGroup;
  std::unique_ptr<ButtonGroup> m_pButtons;
  ColourPicker* m_pPicker = nullptr;  // child windows
  VornControl* m_pOk = nullptr;
  VornControl* m_pCancel = nullptr;
};

// The control families of the soak test, one table entry each, built from
// the default skin as a host would build them.
#include <algorithm>
#include <array>
#include <string>

#include "Soak.h"

namespace {

using Random = SoakRandom;

// Runs a timer's work now if it is running, as its next tick would.
void Tick(wxTimer* timer) {
  if (timer && timer->IsRunning()) timer->Notify();
}

void SetOn(VornControl* c, Random& r) {
  static_cast<VornButton*>(c)->SetOn(r.Chance(50));
}

// A button family drawn from one image set, reporting to the one-of-N side.
template <class Button>
SoakFamily ImageButton(const char* name, const char* script) {
  return {name,
          [script](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random&) {
            return new Button(s.Images(script), x, y, p, id, g.OneOfN());
          },
          SetOn};
}

VornControl* MakeEdit(const SoakSkin& skin, wxWindow* parent, int x, int y, int id,
                      VornControlGroup* group, Random& r, int kind) {
  VornEditInfo info;
  const wxBitmap* picture = nullptr;
  const char* widget = r.Chance(50) ? "edit_widget.sts" : "edit_value.sts";
  skin.assets.LoadEditWidgetCached(widget, picture, info);
  const int styles[] = {VornEdit::ES_TEXT, VornEdit::ES_INT, VornEdit::ES_REAL, VornEdit::ES_REAL2,
                        VornEdit::ES_PASSWORD};
  const int style = styles[r.Below(5)];
  const bool editable = r.Chance(80);
  switch (kind) {
    case 1:
      return new DateEditBox(picture, info, x, y, parent, id, editable, style, group);
    case 2:
      return new TimeEditBox(picture, info, x, y, parent, id, editable, style, group);
    case 3: {
      auto* box = new ScaleEditBox(picture, info, x, y, parent, id, editable, style, group);
      box->SetScale(r.Value() * 100 - 50, r.Value() * 100);
      return box;
    }
    default:
      return new VornEdit(picture, info, x, y, parent, id, editable, style, group);
  }
}

void EditValue(VornControl* c, Random& r) {
  auto* edit = static_cast<VornEdit*>(c);
  if (r.Chance(20)) {
    edit->SetEditable(r.Chance(50));
  } else if (r.Chance(20)) {
    edit->CheckFormating();
  } else {
    edit->SetText(SoakText(r), r.Chance(50));
  }
}

void EditTick(VornControl* c) {
  auto* edit = static_cast<VornEdit*>(c);
  Tick(&edit->GetBlinkTimer());
  Tick(&edit->GetDragTimer());
}

VornControl* MakeList(const SoakSkin& skin, wxWindow* parent, int x, int y, int id,
                      VornControlGroup* group, Random& r, bool button) {
  VornListBoxInfo info;
  skin.assets.LoadListBoxCached(button ? "listbutton.lbs" : "listbox.lbs", info);
  VornListBoxCallback* list = nullptr;
  VornControl* control = nullptr;
  if (button) {
    auto* b = new VornListButton(info, x, y, parent, id, group);
    list = b;
    control = b;
  } else {
    wxFont font = skin.Font("label");
    auto* b = r.Chance(50) ? new VornListBox(info, x, y, parent, font, id, group)
                           : new VornListBox(info, x, y, parent, id, group);
    list = b;
    control = b;
  }
  const int items = r.Chance(20) ? r.Between(20, 60) : r.Below(8);
  for (int i = 0; i < items; ++i)
    r.Chance(10) ? list->Append() : list->Append(SoakText(r), nullptr);
  return control;
}

VornListBoxCallback* AsList(VornControl* c) {
  return dynamic_cast<VornListBoxCallback*>(c);
}

void ListValue(VornControl* c, Random& r) {
  VornListBoxCallback* list = AsList(c);
  const int count = list->GetCount();
  r.OneOf({[&] { list->Append(SoakText(r), nullptr); },
           [&] {
             if (count > 0) list->Delete(r.Below(count));
           },
           [&] {  // before an existing row
             if (count > 0)
               r.Chance(20) ? list->Insert(r.Below(count))
                            : list->Insert(r.Below(count), SoakText(r), nullptr);
           },
           [&] {
             if (r.Chance(10)) list->ClearAll();
           },
           [&] { list->SetSelected(r.Below(count + 1) - 1, r.Chance(50)); }});
}

wxWindow* ListPopUp(VornControl* c, Random&) {
  SoakMouse(c, wxEVT_ENTER_WINDOW, 5, 5, false);
  SoakMouse(c, wxEVT_LEFT_DOWN, 5, 5, true);
  return AsList(c)->GetExpanded();
}

void ListPopDown(VornControl* c) {
  AsList(c)->HideExpandedBox();
}

template <class Slider>
void SliderValue(VornControl* c, Random& r) {
  static_cast<Slider*>(c)->SetValue(r.Value(), r.Chance(50));
}

void RangeValue(VornControl* c, Random& r) {
  auto* range = static_cast<VornRangeBase*>(c);
  r.Chance(50) ? range->SetZoomValue(r.Value() * 10, r.Chance(50))
               : range->SetSliderValue(r.Value(), r.Chance(50));
}

VornMenu* MakeMenu(const SoakSkin& s, VornControlGroup* group, Random& r) {
  std::vector<MENUITEM> items;
  s.assets.LoadMenuText(r.Chance(50) ? "menu_playback.txt" : "menu_view.txt", items);
  return new VornMenu(items, s.Images("menu_mark.sts"), s.Colour("menu_bg"),
                      s.Colour("menu_highlight"), s.Colour("menu_title_bg"), s.Colour("menu_text"),
                      s.Font("menu_title"), s.Font("menu_entry"), 0, 0, group, nullptr, wxID_ANY);
}

// ---- menus: the menu is a parentless frame that must outlive its button,
// so the button owns it through a base that is destroyed after it. Its
// entries take their ids from the menu text, so each menu has a group of
// its own: two menus from one asset in one group would clash.
struct MenuHolder {
  VornControlGroup1ofN menuGroup;
  VornMenu* menu = nullptr;
  ~MenuHolder() {
    if (menu) menu->Destroy();
  }
};

template <class Button>
class SoakMenuButton : private MenuHolder, public Button {
 public:
  SoakMenuButton(const SoakSkin& s, const char* images, int mode, int vertical, int x, int y,
                 wxWindow* parent, int id, VornControlGroup* group, Random& r) {
    menu = MakeMenu(s, &menuGroup, r);
    VornMenu* owned = menu;
    Button::Create(s.Images(images), owned, mode, vertical, x, y, parent, id, group);
  }
};

VornMenuOpener* AsOpener(VornControl* c) {
  return static_cast<VornMenuOpener*>(c);
}

void MenuValue(VornControl* c, Random& r) {
  VornMenuOpener* button = AsOpener(c);
  const int count = button->GetCount();
  // The asset's ids or new ones; an id is added only once (ids are unique
  // in a group).
  const int id = r.Chance(50) ? r.Between(0, 30) : r.Between(100, 140);
  const bool fresh = button->FindItem(id) < 0;
  r.OneOf({[&] {
             if (fresh) button->AppendSelectItem(SoakText(r), id);
           },
           [&] {
             if (fresh) button->AppendRadioItem(SoakText(r), id);
           },
           [&] {
             if (r.Chance(50))
               button->DeleteItemID(id);
             else if (count > 0)
               button->DeleteItemPos(r.Below(count));
           },
           [&] { r.Chance(10) ? button->ClearAll() : button->AppendLineBreak(); },
           [&] { button->SetItemText(id, SoakText(r)); }, [&] { button->SetSelected(id); }});
}

wxWindow* MenuPopUp(VornControl* c, Random&) {
  SoakMouse(c, wxEVT_ENTER_WINDOW, 3, 3, false);
  SoakMouse(c, wxEVT_LEFT_DOWN, 3, 3, true);
  VornMenu* menu = AsOpener(c)->GetMenu();
  return menu && menu->IsShown() ? menu : nullptr;
}

void MenuPopDown(VornControl* c) {
  AsOpener(c)->Reset();
}

// ---- movie bar: it reports only to a movie-bar group, so most bars bring
// one of their own that outlives them (the others report to the soak's
// group, that is to nothing).
struct MovieGroupHolder {
  VornMovieBarCG movieGroup;
};

class SoakMovieBar : private MovieGroupHolder, public VornMovieBar {
 public:
  SoakMovieBar(const SoakSkin& s, int x, int y, int w, int h, wxWindow* parent, int id,
               VornControlGroup* outer, Random& r) {
    const wxBitmap *start = nullptr, *end = nullptr, *head = nullptr;
    s.assets.LoadImageCached("movie_start.sts", start);
    s.assets.LoadImageCached("movie_end.sts", end);
    s.assets.LoadImageCached("movie_head.sts", head);
    Create(start, end, head, x, y, w, h, parent, id, r.Chance(80) ? &movieGroup : outer);
    SetColours(s.Colour("movie_track"), s.Colour("movie_range"), s.Colour("movie_played"));
  }
};

void MovieValue(VornControl* c, Random& r) {
  auto* bar = static_cast<VornMovieBar*>(c);
  r.OneOf({[&] { bar->SetStart(r.Value()); }, [&] { bar->SetEnd(r.Value()); },
           [&] { bar->SetUp(r.Below(40) - 5, r.Below(40) - 5); }, [&] { bar->Reset(); },
           [&] { bar->SetValue(r.Value()); }});
}

Color RandomColour(Random& r) {
  return Color(r.Value(), r.Value(), r.Value());
}

void PickerValue(VornControl* c, Random& r) {
  auto* picker = static_cast<ColourPicker*>(c);
  r.OneOf({[&] { picker->SetInitialRGB(RandomColour(r)); },
           [&] { picker->SetColourHSV(r.Value(), r.Value(), r.Value()); },
           [&] { picker->SetColourRGB(RandomColour(r)); }});
}

void AngleValue(VornControl* c, Random& r) {
  static_cast<VornAngleControl*>(c)->SetValue(static_cast<float>(r.Value()), r.Chance(50));
}

ColorA SkinColourA(const SoakSkin& skin, const char* name) {
  return WxCtoCA(skin.Colour(name));
}

std::vector<SoakFamily>& Table() {
  static std::vector<SoakFamily> families = [] {
    std::vector<SoakFamily> table = {
        // ---- buttons
        ImageButton<VornPushButton>("push button", "button_push.sts"),
        ImageButton<VornButtonToggle>("toggle button", "button_toggle.sts"),
        ImageButton<VornRadioButton>("radio button", "button_radio.sts"),
        {"moment button",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new VornMomentBtn(
               s.Images(r.Chance(50) ? "button_moment_up.sts" : "button_moment_down.sts"), x, y, p,
               id, g.OneOfN(), 0, 400, 80);
         },
         SetOn, nullptr, nullptr,
         [](VornControl* c) { Tick(static_cast<VornMomentBtn*>(c)->GetTimer()); }},
        {"moon button",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random&) {
           return new VornMoonButton(s.Images("button_moon.sts"), x, y, p, id, &g);
         },
         SetOn},
        {"ring button",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new VornRingButton(s.Colour("accent"), r.Between(1, 5), r.Below(8), r.Below(8), x,
                                     y, r.Between(8, 48), r.Between(8, 48), p, id, &g);
         },
         SetOn},
        {"text push button",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           if (r.Chance(50))
             return new VornTextPushButton(SoakText(r), -1, -1, s.Font("label"), s.Colour("text"),
                                           s.Colour("face"), s.Colour("text_bright"),
                                           s.Images("button_text.sts"), x, y, p, id, g.OneOfN());
           return new VornTextPushButton(SoakText(r), r.Below(20) - 1, r.Below(20) - 1,
                                         s.Font("label"), s.Colour("text"), s.Colour("face"),
                                         s.Colour("text_bright"), x, y, r.Between(1, 120),
                                         r.Between(1, 40), p, id, g.OneOfN());
         },
         nullptr},
        {"text radio button",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new VornTextRadioButton(s.Images("button_text.sts"), SoakText(r), SoakText(r),
                                          s.Font("label"), s.Colour("text_dim"),
                                          s.Colour("text_bright"), s.Colour("text"), x, y, p, id,
                                          g.OneOfN());
         },
         SetOn},
        // ---- scroll bars
        {"simple scroll bar",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           auto* bar = new VornSimpleScrollBar;
           bar->SetEndButtons(r.Chance(50));
           bar->SetLeft(r.Chance(50));
           bar->Create(s.Colour("scrollbar_outline"), s.Colour("scrollbar_track"),
                       s.Colour("scrollbar_hover"), x, y, r.Between(1, 300), p, id, g.Value());
           return bar;
         },
         [](VornControl* c, Random& r) {
           auto* bar = static_cast<VornSimpleScrollBar*>(c);
           r.Chance(50) ? bar->SetSliderVal(r.Value(), r.Chance(50))
                        : bar->SetFractionVal(r.Value());
         },
         nullptr, nullptr,
         [](VornControl* c) {
           auto* bar = static_cast<VornSimpleScrollBar*>(c);
           for (VornMomentBtn* end : {bar->GetUpButton(), bar->GetDownButton()})
             if (end) Tick(end->GetTimer());
         }},
        {"monster scroll bar",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           auto* bar =
               new MonsterScrollBar(nullptr, nullptr, nullptr, s.Colour("scrollbar_outline"),
                                    s.Colour("scrollbar_track"), s.Colour("scrollbar_hover"), x, y,
                                    r.Between(1, 300), p, id, g.Value(), r.Chance(50));
           bar->SetFractionVal(r.Value());
           return bar;
         },
         [](VornControl* c, Random& r) {
           static_cast<MonsterScrollBar*>(c)->SetSliderVal(r.Value(), r.Chance(50));
         }},
        {"image scroll bar",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           auto* bar =
               new VornScrollBar(s.Picture("scroll_thumb.sts"), s.Picture("scroll_thumb_end.sts"),
                                 s.Picture("scroll_thumb_start.sts"), s.Colour("scrollbar_outline"),
                                 s.Colour("scrollbar_track"), r.Value() * 200, x, y,
                                 r.Between(1, 300), p, id, g.Value());
           bar->AddToRange(r.Value() * 1000, false);
           return bar;
         },
         [](VornControl* c, Random& r) {
           auto* bar = static_cast<VornScrollBar*>(c);
           r.Chance(50) ? bar->SetValue(r.Value())
                        : bar->AddToRange(r.Value() * 100 - 50, r.Chance(50));
         }},
        // ---- text
        {"multi-line edit",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           VornEditInfo info;
           const wxBitmap* picture = nullptr;
           s.assets.LoadEditWidgetCached("edit_multiline.sts", picture, info);
           auto* box = new VornMultiEdit(picture, info, x, y, p, id, r.Chance(80), g.OneOfN());
           box->SetScrollColours(s.Colour("scrollbar_outline"), s.Colour("scrollbar_track"),
                                 s.Colour("scrollbar_hover"));
           return box;
         },
         [](VornControl* c, Random& r) {
           auto* box = static_cast<VornMultiEdit*>(c);
           r.Chance(20) ? box->SetEditable(r.Chance(50)) : box->SetText(SoakText(r), r.Chance(50));
         }},
        // ---- menus and bars
        {"pop-up button",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new SoakMenuButton<VornPopUpButton>(s, "button_popup_up.sts", r.Below(2),
                                                      r.Below(2), x, y, p, id, g.OneOfN(), r);
         },
         MenuValue, MenuPopUp, MenuPopDown},
        {"pop-side button",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new SoakMenuButton<VornPopSideButton>(s, "button_popup_side.sts", r.Below(2),
                                                        r.Below(2), x, y, p, id, g.OneOfN(), r);
         },
         MenuValue, MenuPopUp, MenuPopDown},
        {"movie bar",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new SoakMovieBar(s, x, y, r.Between(1, 400), r.Between(1, 40), p, id, g.Value(),
                                   r);
         },
         MovieValue},
        {"title bar",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup&, Random& r) {
           auto* bar =
               new VornTitleBar(SoakText(r), x, y, r.Between(1, 400), r.Between(1, 30), p, id);
           bar->SetFont(s.Font("titlebar"));
           return bar;
         },
         [](VornControl* c, Random& r) {
           auto* bar = static_cast<VornTitleBar*>(c);
           r.Chance(50) ? bar->SetTitle(SoakText(r))
                        : bar->SetTitlePos(r.Below(300) - 20, r.Below(40) - 10);
         }},
        // ---- colour
        {"colour picker",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           auto* picker = new ColourPicker(
               x, y, p, id, r.Chance(80) ? g.Value() : nullptr,
               r.Chance(50) ? ColourPickerLook::FromSkin(s.assets) : ColourPickerLook());
           picker->SetInitialRGB(RandomColour(r));
           return picker;
         },
         PickerValue},
        {"hue-value field",
         [](const SoakSkin&, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new HueValueControl(x, y, r.Between(1, 300), r.Between(1, 200), p, id, g.Value());
         },
         [](VornControl* c, Random& r) {
           auto* field = static_cast<HueValueControl*>(c);
           const wxSize size = field->GetClientSize();
           r.Chance(50)
               ? field->SetHueValue(r.Value(), r.Value())
               : field->SetColourFromPos(r.Between(-10, size.x + 10), r.Between(-10, size.y + 10));
         }},
        {"saturation slider",
         [](const SoakSkin&, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new SaturationPreview(x, y, r.Between(1, 60), r.Between(1, 160), p, id,
                                        g.Value());
         },
         [](VornControl* c, Random& r) {
           auto* slider = static_cast<SaturationPreview*>(c);
           r.OneOf({[&] { slider->ScrollUp(); }, [&] { slider->ScrollDown(); },
                    [&] { slider->SetSaturation(r.Value()); }});
         }},
        // ---- values
        {"picture slider",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new VornSliderA(
               r.Chance(50) ? SLIDER_PLAIN : SLIDER_CENTRED, s.Picture("slider_track_left.sts"),
               s.Picture("slider_track_mid.sts"), s.Picture("slider_track_right.sts"),
               s.Picture("slider_fill_cap.sts"), s.Picture("slider_fill_mid.sts"),
               s.Picture("slider_thumb.sts"), x, y, r.Between(1, 300), 20, s.Colour("panel"), p, id,
               g.Value());
         },
         SliderValue<VornSlider>},
        {"colour slider",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           auto* slider =
               new VornSliderB(s.Colour("slider_round_track"), s.Colour("slider_round_thumb"), x, y,
                               r.Between(1, 300), r.Between(1, 40), p, id, g.Value());
           slider->SetSliderType(r.Chance(50) ? SLIDER_PLAIN : SLIDER_CENTRED);
           return slider;
         },
         SliderValue<VornSlider>},
        {"fader",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new VornSliderC(s.Picture("fader_track.sts"), s.Picture("fader_thumb.sts"), x, y,
                                  r.Between(1, 300), r.Between(1, 40), p, id, g.Value());
         },
         SliderValue<VornSlider>},
        {"range bar",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           const int w = r.Between(1, 400), start = r.Below(w);
           return new VornRangeControl(WxCtoC(s.Colour("range_track")),
                                       WxCtoC(s.Colour("range_bar")), x, y, w, 18, start,
                                       r.Between(start + 1, w + 10), nullptr, p, id, g.Value());
         },
         RangeValue},
        {"vertical range bar",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           const int h = r.Between(1, 300), start = r.Below(h);
           return new VornVertRangeControl(
               WxCtoC(s.Colour("range_track")), WxCtoC(s.Colour("range_bar")), x, y, 18, h, start,
               r.Between(start + 1, h + 10), nullptr, false, p, id, g.Value());
         },
         RangeValue},
        {"thumb wheel",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           const bool vertical = r.Chance(50);
           auto* wheel = new VornThumbWheelControl(
               s.PictureA(vertical ? "thumbwheel_frame_v.sts" : "thumbwheel_frame.sts"),
               s.PictureA(vertical ? "thumbwheel_strip_v.sts" : "thumbwheel_strip.sts"),
               s.PictureA(vertical ? "thumbwheel_window_v.sts" : "thumbwheel_window.sts"), x, y,
               vertical, r.Between(1, 12), p, id, g.Value());
           wheel->SetMinValue(static_cast<float>(-r.Value() * 1000));
           wheel->SetMaxValue(static_cast<float>(r.Value() * 1000));
           return wheel;
         },
         [](VornControl* c, Random& r) {
           auto* wheel = static_cast<VornThumbWheelControl*>(c);
           r.Chance(50) ? wheel->SetCurrentValue(static_cast<float>(r.Value() * 2000 - 1000))
                        : wheel->SetValue(r.Between(-500, 500));
         }},
        // ---- instruments
        {"angle dial",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           const int size = r.Between(1, 160);
           return new VornAngleControlB(SkinColourA(s, "dial_ring"), SkinColourA(s, "dial_needle"),
                                        x, y, size, size, p, id, g.Value());
         },
         AngleValue},
        {"clock",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           const VornBitmapACache* faces = nullptr;
           s.assets.LoadImagesCached("clock_face.sts", faces);
           return new VornTimeControl(faces, s.PictureA("clock_hand.sts"), r.Between(1, 60), x, y,
                                      120, 120, p, id, g.Value());
         },
         AngleValue},
        {"callipers",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new VornAngleClippers(SkinColourA(s, "calliper_frame"),
                                        SkinColourA(s, "calliper_scale"),
                                        SkinColourA(s, "calliper_marker"), r.Between(1, 90), x, y,
                                        r.Between(1, 300), r.Between(1, 100), p, id, g.Value());
         },
         [](VornControl* c, Random& r) {
           static_cast<VornAngleClippers*>(c)->SetValue(r.Value(), r.Chance(50));
         }},
        {"compass",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           return new VornCompassControl(
               s.PictureA("compass_strip.sts"), s.PictureA("compass_frame.sts"),
               s.PictureA("compass_marker.sts"), x, y, r.Between(1, 320), 44, p, id, g.OneOfN());
         },
         [](VornControl* c, Random& r) {
           static_cast<VornCompassControl*>(c)->SetValue(static_cast<float>(r.Value()));
         }},
        {"artificial horizon",
         [](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
           const int size = r.Between(1, 140);
           return new VornAHorizonControl(s.PictureA("horizon_ball.sts"), size / 2, size / 2,
                                          r.Between(1, 70), x, y, size, size, p, id, g.Value());
         },
         [](VornControl* c, Random& r) {
           auto* horizon = static_cast<VornAHorizonControl*>(c);
           r.Chance(50) ? horizon->SetValue(static_cast<float>(r.Value()))
                        : horizon->SetPitchValue(static_cast<float>(r.Value()));
         }},
    };
    // Families that differ only in one setting.
    const char* const edits[] = {"edit", "date edit", "time edit", "scale edit"};
    for (int kind = 0; kind < 4; ++kind)
      table.push_back({edits[kind],
                       [kind](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g,
                              Random& r) { return MakeEdit(s, p, x, y, id, g.OneOfN(), r, kind); },
                       EditValue, nullptr, nullptr, EditTick});
    for (bool button : {false, true})
      table.push_back(
          {button ? "list button" : "list box",
           [button](const SoakSkin& s, wxWindow* p, int x, int y, int id, SoakGroup& g, Random& r) {
             return MakeList(s, p, x, y, id, g.OneOfN(), r, button);
           },
           ListValue, ListPopUp, ListPopDown});
    for (SoakFamily& f : SoakTableAndTreeFamilies()) table.push_back(std::move(f));
    return table;
  }();
  return families;
}
}  // namespace

const std::vector<SoakFamily>& SoakFamilies() {
  return Table();
}

bool SoakKeepFamilies(const std::string& part) {
  std::vector<SoakFamily>& table = Table();
  table.erase(std::remove_if(table.begin(), table.end(),
                             [&](const SoakFamily& f) {
                               return std::string(f.name).find(part) == std::string::npos;
                             }),
              table.end());
  return !table.empty();
}

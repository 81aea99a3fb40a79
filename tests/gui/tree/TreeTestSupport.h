#pragma once
// A tree control on a test frame with the default skin, and a leaf control
// of fixed metrics that fills itself with its row colour.
#include <memory>

#include "../ControlTestSupport.h"
#include "vorn/AssetManager.h"
#include "vorn/FileAsset.h"
#include "vorn/GraphicsFunctions.h"
#include "vorn/VornNode.h"

// The default skin, loaded once for the suite.
inline AssetManager& TreeSkin() {
  static AssetManager* assets = [] {
    auto* am = new AssetManager;
    auto* loader = new FileAssetLoader;
    loader->Init(std::string(VORN_SKIN_DIR) + "/");
    am->SetAssetLoader(loader);
    am->SetLanguage("english", "");
    am->LoadAssets();
    am->LoadColourData("colours.txt");
    am->LoadFontData("fonts.txt");
    return am;
  }();
  return *assets;
}

class BoxControl : public VornVUIControl {
 public:
  BoxControl(int alignment, int width, int height)
      : m_alignment(alignment), m_width(width), m_height(height) {}
  int GetAllignmentPt() override { return m_alignment; }
  int GetMaxWidth() override { return m_width; }
  int GetMaxHeight() override { return m_height; }
  void OnDraw(wxDC* dc) override {
    dc->SetBrush(wxBrush(CtoWxC(GetRowBackgroundCol())));
    dc->SetPen(*wxTRANSPARENT_PEN);
    dc->DrawRectangle(0, 0, m_width, m_height);
  }

 private:
  int m_alignment;
  int m_width;
  int m_height;
};

struct TreeFixture {
  explicit TreeFixture(int w = 400, int h = 300) {
    tree = new VornMainVUITreeControl;
    tree->Create(100, &TreeSkin(), 0, 0, w, h, frame.Get(), 50, &group);
    PumpEvents();
  }
  VornTreeRootNode* Root() const { return tree->GetTreeRoot(); }
  static VornVUIControlNode* AddLeaf(VornTreeNode* level, int alignment, int width, int height) {
    auto* node = new VornVUIControlNode(new BoxControl(alignment, width, height), level, true);
    level->AddToEnd(node);
    return node;
  }
  static VornBranchNode* AddBranch(VornTreeNode* level, const char* name = "Branch") {
    auto* node = new VornBranchNode(level, name);
    level->AddToEnd(node);
    return node;
  }
  static wxPoint WindowPos(VornNode* node) {
    return node->GetVornVUIControl()->wxWindow::GetPosition();
  }

  TestFrame frame{wxSize(600, 400)};
  EventLog log;
  RecordingGroup group{&log};
  VornMainVUITreeControl* tree = nullptr;  // a child of the frame
};

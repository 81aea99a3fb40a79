#pragma once
// The button, table and pop-up editors under test: a log that also names
// button pushes ("push 3 1"), and a tree on a frame to put them in.
#include <string>

#include "../tree/TreeEditorTestSupport.h"

namespace treeedit2b {

using namespace treetest;

class ButtonHintLog : public NodeHintLog {
 public:
  void OnUpdate(unsigned int id, VornControl* source, VornControlHint* hint) override {
    if (auto* h = dynamic_cast<NodeButtonPushHint*>(hint))
      log.push_back("push " + std::to_string(h->m_nodeId) + " " + std::to_string(h->m_buttonId));
    else
      NodeHintLog::OnUpdate(id, source, hint);
  }
};

// A tree on a frame whose host group logs every hint.
struct TreeOnFrame {
  TreeOnFrame() {
    group.Register(&hints);
    tree = new VornMainVUITreeControl;
    tree->Create(120, &Skin(), 0, 0, 640, 400, frame.Get(), 1, &group);
    root = tree->GetTreeRoot();
  }
  ~TreeOnFrame() { group.DeRegister(&hints); }
  // A leaf at the end of level; its node through node.
  template <class Editor>
  Editor* Add(VornTreeNode* level, Editor* editor, VornVUIControlNode** node = nullptr) {
    auto* leaf = new VornVUIControlNode(editor, level, true);
    level->AddToEnd(leaf);
    if (node) *node = leaf;
    tree->RefreshTree();
    return editor;
  }
  static int IdOf(VornVUIControl* control) { return control->GetVUIControlNode()->GetNodeID(); }

  ButtonHintLog hints;
  VornControlGroup group;
  TestFrame frame{wxSize(700, 460)};
  VornMainVUITreeControl* tree = nullptr;  // a child of the frame
  VornTreeRootNode* root = nullptr;
};

}  // namespace treeedit2b

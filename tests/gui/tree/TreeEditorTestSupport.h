#pragma once
// The tree editors under test: the default skin loaded once, and a receiver
// that names the node hints reaching a group ("changing 3", "changed 3",
// "function 3 1 0", "int 1", "real 0.5").
#include <gtest/gtest.h>

#include <memory>

#include "TreeTestSupport.h"
#include "vorn/VUIControls.h"

namespace treetest {

// The default skin with its fonts and colours, shared by the tests.
inline AssetManager& Skin() {
  return TreeSkin();
}

class NodeHintLog : public MessageReceiver {
 public:
  void OnUpdate(unsigned int, VornControl*, VornControlHint* hint) override {
    if (auto* h = dynamic_cast<NodeChangingHint*>(hint))
      log.push_back("changing " + std::to_string(h->m_nodeId));
    else if (auto* h = dynamic_cast<NodeChangedHint*>(hint))
      log.push_back("changed " + std::to_string(h->m_nodeId));
    else if (auto* h = dynamic_cast<FunctionButtonPushHint*>(hint))
      log.push_back("function " + std::to_string(h->m_nodeId) + " " + std::to_string(h->m_newType) +
                    " " + std::to_string(h->m_previousType));
    else if (auto* h = dynamic_cast<IntValChanged*>(hint))
      log.push_back("int " + std::to_string(h->m_value));
    else if (auto* h = dynamic_cast<RealValChanged*>(hint))
      log.push_back("real " + std::to_string(h->m_value));
    else
      log.push_back("other");
  }
  // The log so far, emptied; repeated entries collapsed ("changing 3 x4").
  std::string Take() {
    EventLog out;
    int repeat = 1;
    for (std::size_t i = 0; i < log.size(); ++i) {
      if (i + 1 < log.size() && log[i + 1] == log[i]) {
        ++repeat;
        continue;
      }
      out.push_back(repeat > 1 ? log[i] + " x" + std::to_string(repeat) : log[i]);
      repeat = 1;
    }
    log.clear();
    return Joined(out);
  }
  EventLog log;
};

// A group with the log registered, as a host's tree group would be.
struct LoggedGroup {
  LoggedGroup() { group.Register(&hints); }
  ~LoggedGroup() { group.DeRegister(&hints); }
  NodeHintLog hints;
  VornControlGroup group;
};

// Sets a control's measured name width, for exact metrics.
struct NameWidth : VUITreeControlBase {
  static void Force(VUITreeControlBase* control, int w) { control->*(&NameWidth::m_nameWidth) = w; }
};

// Editors made on a frame, reporting to a logged tree group.
class EditorFixture : public ::testing::Test {
 protected:
  template <class Editor, class... Args>
  Editor* Make(Args&&... args) {
    auto* e = new Editor(&Skin(), std::forward<Args>(args)...);
    e->Create(frame.Get(), ++lastId, &tree.group);
    return e;
  }
  LoggedGroup tree;
  TestFrame frame{wxSize(700, 300)};
  int lastId = 10;
};

inline std::string TextOf(VornEdit* edit) {
  VornString s;
  edit->GetText(s);
  return s;
}

}  // namespace treetest

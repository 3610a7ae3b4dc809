#include "stats/numbers/dendrogram.h"

namespace zelko::numbers {

namespace {

struct Branch {
  std::vector<int> members;  // none once it is part of another
  double place = 0, level = 0;
};

}  // namespace

Dendrogram dendrogram(int objects, std::span<const Merge> merges) {
  std::vector<Branch> branches(static_cast<std::size_t>(objects) + 1);
  for (int i = 1; i <= objects; ++i) branches[i].members = {i};
  Dendrogram tree;
  for (const Merge& merge : merges) {
    Branch &left = branches[merge.i], &right = branches[merge.j];
    left.members.insert(left.members.end(), right.members.begin(), right.members.end());
    right.members.clear();
    tree.joints.push_back({0, 0, 0, 0, merge.mergeLevel, left.members});
  }
  for (const Branch& branch : branches)
    tree.leaves.insert(tree.leaves.end(), branch.members.begin(), branch.members.end());

  for (int k = 0; k < objects; ++k) branches[tree.leaves[k]].place = k + 1;
  for (std::size_t step = 0; step < merges.size(); ++step) {
    Branch& left = branches[merges[step].i];
    const Branch& right = branches[merges[step].j];
    Joint& joint = tree.joints[step];
    joint.left = left.place;
    joint.right = right.place;
    joint.leftLevel = left.level;
    joint.rightLevel = right.level;
    left.place = (left.place + right.place) / 2;
    left.level = joint.level;
  }
  return tree;
}

}  // namespace zelko::numbers

#ifndef HYDROFACTS_FRAME_NODELIST_H
#define HYDROFACTS_FRAME_NODELIST_H

#include <memory>

// The rows of the models are singly linked lists whose heads and `next` pointers hosts walk. The
// model owns the nodes; what it does with them is done here.

namespace hydrofacts {

/// Releases every node of a list, one after the other, and leaves the head null.
template <class Node>
void ReleaseNodes(Node*& head) {
    while (head != nullptr) {
        const std::unique_ptr<Node> first(head);
        head = first->next;
    }
}

/// The end of a list, where further nodes are linked. Valid as long as nobody else changes the
/// list.
template <class Node>
class ListEnd {
  public:
    explicit ListEnd(Node*& head) : link_(&head) {
        while (*link_ != nullptr) link_ = &(*link_)->next;
    }

    /// Gives the list a further node and returns it.
    Node& Append(std::unique_ptr<Node> node) {
        node->next = nullptr;
        Node& last = *node.release();
        *link_ = &last;
        link_ = &last.next;
        return last;
    }

  private:
    Node** link_;
};

/// Appends a copy of each node of a list that begins with `first` to another list.
template <class Node>
void AppendCopies(Node*& head, const Node* first) {
    ListEnd<Node> end(head);
    for (const Node* node = first; node != nullptr; node = node->next) {
        end.Append(std::make_unique<Node>(*node));
    }
}

}  // namespace hydrofacts

#endif

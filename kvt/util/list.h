#ifndef KVT_UTIL_LIST_H
#define KVT_UTIL_LIST_H

#include <kvt/export.h>

// A doubly linked list of untyped pointers. Elements go in at the head only,
// are found by position from the head, and leave by pointer value. The list
// owns its nodes but never the elements: whoever adds an element releases it,
// usually by walking GetHead()->next... and only then calling Clear().

struct ListNode {
    void *element;
    ListNode *previous; // towards the head; null in the head node
    ListNode *next;     // towards the tail; null in the tail node
};

class KVT_API List {
public:
    ListNode *head;  // the node added last
    ListNode *tail;  // the node added first
    int count;

    List();
    ~List();
    // Copying would share nodes between two owners.
    List(const List &) = delete;
    List &operator=(const List &) = delete;

    bool IsEmpty();
    void AddElement(void *element);
    // Removes only the copy nearest the head; an absent pointer changes nothing.
    void DeleteElement(void *element);
    bool IsElementInList(void *element);
    // Clears destination, then adds this list's elements head to tail, so the
    // destination holds them in reverse order. Into itself it empties the list.
    void Duplicate(List *destination);
    void Clear();
    // Position 0 is the head. An index past the end gives the tail's element;
    // a negative index or an empty list gives null.
    void *GetElementN(int index);
    int GetNbElement();
    ListNode *GetHead();
};

#endif

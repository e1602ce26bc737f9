#include <kvt/util/list.h>

List::List() : head(nullptr), tail(nullptr), count(0) {}

List::~List() { Clear(); }

bool List::IsEmpty() { return head == nullptr && tail == nullptr; }

void List::AddElement(void *element)
{
    ListNode *node = new ListNode{element, nullptr, head};
    if (head)
        head->previous = node;
    else
        tail = node;
    head = node;
    ++count;
}

void List::DeleteElement(void *element)
{
    for (ListNode *node = head; node; node = node->next) {
        if (node->element != element)
            continue;
        if (node->previous)
            node->previous->next = node->next;
        else
            head = node->next;
        if (node->next)
            node->next->previous = node->previous;
        else
            tail = node->previous;
        delete node;
        --count;
        return;
    }
}

bool List::IsElementInList(void *element)
{
    for (ListNode *node = head; node; node = node->next)
        if (node->element == element)
            return true;
    return false;
}

void List::Duplicate(List *destination)
{
    // Clearing first is what makes a copy into itself end up empty.
    destination->Clear();
    for (ListNode *node = head; node; node = node->next)
        destination->AddElement(node->element);
}

void List::Clear()
{
    ListNode *node = head;
    while (node) {
        ListNode *next = node->next;
        delete node;
        node = next;
    }
    head = tail = nullptr;
    count = 0;
}

void *List::GetElementN(int index)
{
    if (index < 0)
        return nullptr;
    void *element = nullptr;
    int visited = 0;
    for (ListNode *node = head; node && visited <= index; node = node->next, ++visited)
        element = node->element;
    return element;
}

int List::GetNbElement() { return count; }

ListNode *List::GetHead() { return head; }

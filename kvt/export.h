#ifndef KVT_EXPORT_H
#define KVT_EXPORT_H

// Marks what libkvt.so exports: the library is built with every symbol
// hidden, and only the classes and functions marked KVT_API make up its
// binary interface. In a program that includes the headers the mark
// changes nothing.
#define KVT_API __attribute__((visibility("default")))

#endif

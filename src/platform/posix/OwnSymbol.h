#pragma once

#include <cstddef>

namespace dyeworks {

/// Address of a symbol that the library of a dlopen handle defines itself, or null. The libraries that it
/// needs are not searched, as plain dlsym would: what they export says nothing about this one.
void* ownSymbol(void* handle, const char* name);

/// The same for an object of at least `size` bytes.
const void* ownObject(void* handle, const char* name, std::size_t size);

} // namespace dyeworks

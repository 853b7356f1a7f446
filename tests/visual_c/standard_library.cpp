// What is compiled in g++'s standard library for Windows is of g++'s ABI. Its headers are read for
// Visual C++'s here, so that the little of it that is no template stands in this file, for that
// ABI.
#include <cstdlib>
#include <exception>
#include <new>
#include <string>

namespace std {

exception::~exception() noexcept {}
const char* exception::what() const noexcept { return "exception"; }
bad_alloc::~bad_alloc() noexcept {}
const char* bad_alloc::what() const noexcept { return "bad_alloc"; }

void __throw_bad_alloc() { throw bad_alloc(); }
void __throw_bad_array_new_length() { throw bad_alloc(); }
void __throw_length_error(const char*) { throw bad_alloc(); }
void __throw_logic_error(const char*) { throw bad_alloc(); }
void __throw_out_of_range_fmt(const char*, ...) { throw bad_alloc(); }

}  // namespace std

template class std::basic_string<char>;

void* operator new(std::size_t size) {
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }

extern "C" {
// Type descriptors refer to the table of type_info's functions, which vcruntime.lib holds; nothing
// calls one.
extern void* type_info_table[1];
void* type_info_table[1] __asm__("??_7type_info@@6B@") = {nullptr};
int _fltused = 0;
}

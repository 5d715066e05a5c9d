// A shared library that is no plug-in at all.
extern "C" int plain_library_answer();

extern "C" int plain_library_answer()
{
    return 42;
}

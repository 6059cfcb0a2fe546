// Stands for a DOSBox that was built for Windows: writes what it was started with into told.txt in
// the folder where it runs, one thing a line, in UTF-8. The file is there once it is whole.

#include <stdio.h>
#include <string.h>
#include <windows.h>

static void Tell(FILE* file, const char* what, const wchar_t* text)
{
    static char utf8[4096];
    WideCharToMultiByte(CP_UTF8, 0, text, -1, utf8, sizeof utf8, NULL, NULL);
    fprintf(file, "%s=%s\n", what, utf8);
}

int wmain(int argc, wchar_t** argv)
{
    wchar_t folder[1024] = L"";
    FILE* file = fopen("told.new", "wb");
    if (file == NULL) {
        return 1;
    }
    GetCurrentDirectoryW(1024, folder);
    Tell(file, "folder", folder);
    for (int i = 0; i < argc; ++i) {
        Tell(file, "argument", argv[i]);
    }
    FILE* conf = fopen("dosbox.conf", "rb");
    char line[512];
    while (conf != NULL && fgets(line, sizeof line, conf) != NULL) {
        if (strstr(line, ":\\") != NULL || line[0] == '[') {
            fprintf(file, "conf=%s", line);
        }
    }
    if (conf != NULL) {
        fclose(conf);
    }
    fclose(file);
    return MoveFileW(L"told.new", L"told.txt") ? 0 : 1;
}

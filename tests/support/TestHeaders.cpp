// Only there to have its headers compiled; see CMakeLists.txt.
int main() {}

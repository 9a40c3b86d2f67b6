// korvet: the desktop program.
int main() {
    return 0;
}

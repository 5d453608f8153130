/* Needs the sample library and says nothing of itself. */
__attribute__((visibility("default"))) int dependentAnswer(void);

int dependentAnswer(void) {
    return 42;
}

#include <QtTest>
int main(){return 0;}

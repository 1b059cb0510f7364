// SPDX-License-Identifier: MIT
// Does nothing, with the same libraries as the program.
int main()
{
    return 0;
}

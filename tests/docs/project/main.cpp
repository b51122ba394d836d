// SPDX-License-Identifier: MIT

// That the snippets are compiled and linked is what they are here for.
int main()
{
    return 0;
}

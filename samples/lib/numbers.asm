; Numbers as text.

; AX as two digits at DI.
FormatTwo:
        push    bx
        cmp     ax, 99
        jbe     .fits
        mov     ax, 99
.fits:  mov     bl, 10
        div     bl
        add     ax, '00'
        mov     [di], ax
        pop     bx
        ret

; AX as a number without leading zeros at DI, ended by 0.
FormatShort:
        pusha
        xor     cx, cx
        mov     bx, 10
.digit: xor     dx, dx
        div     bx
        push    dx
        inc     cx
        test    ax, ax
        jnz     .digit
.put:   pop     ax
        add     al, '0'
        mov     [di], al
        inc     di
        loop    .put
        mov     byte [di], 0
        popa
        ret
